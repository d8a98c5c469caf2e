#include "addon/html/documentation_run.h"

#include <shellapi.h>

#include <string>

#include "addon/foundation/directory_listing.h"
#include "addon/foundation/file_system_win.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/path.h"
#include "addon/html/html_settings.h"
#include "addon/ide/bar_messages.h"
#include "addon/ide/current_project.h"
#include "addon/ide/status_line.h"

namespace kesto {

DocumentationRun* documentationRun = nullptr;

namespace {

// Above 0 while a generation runs. Only its own thread counts, so that two requests in
// quick succession may both find it 0.
std::atomic<int> runningGenerations = 0;

constexpr DWORD kProgressPeriod = 100;  // milliseconds
// What ShellExecute yields for a failure at most.
constexpr INT_PTR kShellFailure = 32;

}  // namespace

DocumentationRun::~DocumentationRun() {
  finish();
}

// Windows of other threads may send to this one's meanwhile, a box of the generation among them.
void DocumentationRun::finish() {
  if (thread_ == nullptr) {
    return;
  }
  DWORD woken = 0;
  while ((woken = MsgWaitForMultipleObjects(1, &thread_, FALSE, kProgressPeriod, QS_SENDMESSAGE)) !=
             WAIT_OBJECT_0 &&
         woken != WAIT_FAILED) {
    MSG message;
    PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
    showProgress();
  }
  showProgress();
  CloseHandle(thread_);
  thread_ = nullptr;
}

void DocumentationRun::generate() {
  if (!isProjectOpen() || htmlSettings == nullptr) {
    return;
  }
  // A thread that has not come to counting itself runs as well.
  const bool ended = phase_ == Phase::kDone || phase_ == Phase::kStopped;
  if (runningGenerations > 0 || (thread_ != nullptr && !ended)) {
    showMessage(nullptr, "HTML generation in progress", "Warning", kMessageOk);
    return;
  }
  finish();
  request_ = {projectDirectory(), htmlSettings->filters(), projectName()};
  phase_ = Phase::kIdle;
  shown_.clear();
  DWORD id = 0;
  thread_ = CreateThread(nullptr, 0, work, this, 0, &id);
  if (thread_ == nullptr) {
    showStatus("HTML generation could not be started");
  }
}

DWORD WINAPI DocumentationRun::work(void* run) {
  DocumentationRun& self = *static_cast<DocumentationRun*>(run);
  ++runningGenerations;
  DirectoryListing listing;
  FileSystemWin files;
  const bool whole = generateSite(self.request_, listing, files, self);
  self.phase_ = whole ? Phase::kDone : Phase::kStopped;
  --runningGenerations;
  self.post();
  return 0;
}

void DocumentationRun::reading(int files) {
  tell(Phase::kReading, files, 0);
}

void DocumentationRun::writing(int pages, int all) {
  tell(Phase::kWriting, pages, all);
}

void DocumentationRun::tell(Phase phase, int done, int all) {
  phase_ = phase;
  done_ = done;
  all_ = all;
  const DWORD now = GetTickCount();
  if (now - told_ >= kProgressPeriod) {
    told_ = now;
    post();
  }
}

void DocumentationRun::post() {
  PostMessageA(bar_, kDocumentationMessage, 0, 0);
}

void DocumentationRun::showProgress() {
  const int done = done_;
  const int refused = all_ - done;
  std::string text = "HTML generation";
  switch (phase_) {
    case Phase::kIdle:
      return;
    case Phase::kReading:
      text += ": " + std::to_string(done) + " files read";
      break;
    case Phase::kWriting:
      text += ": page " + std::to_string(done) + " of " + std::to_string(all_);
      break;
    case Phase::kDone:
      text += ": " + std::to_string(done) + " pages written";
      if (refused > 0) {
        text += ", " + std::to_string(refused) + " refused";
      }
      break;
    case Phase::kStopped:
      text += " stopped";
      break;
  }
  // What was posted late tells the same.
  if (shown_ != text) {
    shown_ = text;
    showStatus(text.c_str());
  }
}

void DocumentationRun::show() {
  if (!isProjectOpen()) {
    return;
  }
  const std::string directory = siteDirectory(projectDirectory());
  const std::string page = siteStartPage(projectDirectory(), projectName());
  const HINSTANCE result = ShellExecuteA(GetActiveWindow(), "open", page.c_str(), nullptr,
                                         directory.c_str(), SW_SHOWMAXIMIZED);
  if (reinterpret_cast<INT_PTR>(result) <= kShellFailure) {
    showStatus("The HTML documentation could not be opened");
  }
}

}  // namespace kesto
