#include "addon/ide/help_viewer.h"

namespace kesto {
namespace {

constexpr char kViewerClass[] = "MS_WINHELP";
constexpr DWORD kStartPatience = 10000;  // milliseconds, as below
constexpr DWORD kStartStep = 50;
constexpr DWORD kQuitPatience = 2000;

bool waitForViewer() {
  const DWORD began = GetTickCount();
  while (FindWindowA(kViewerClass, nullptr) == nullptr) {
    if (GetTickCount() - began >= kStartPatience) {
      return false;
    }
    Sleep(kStartStep);
  }
  return true;
}

}  // namespace

HelpViewer::HelpViewer(HWND owner, const char* path)
    : requests_(new Requests{owner, path, kIdle}) {}

HelpViewer::~HelpViewer() {
  if (thread_ != nullptr) {
    CloseHandle(thread_);
  }
}

void HelpViewer::show(HINSTANCE module, DWORD context) {
  request(module, context);
}

void HelpViewer::quit(HINSTANCE module) {
  request(module, kQuit);
  const DWORD began = GetTickCount();
  DWORD passed = 0;
  // The viewer's windows may send to those of this thread as they come and go.
  while (thread_ != nullptr && (passed = GetTickCount() - began) < kQuitPatience &&
         MsgWaitForMultipleObjects(1, &thread_, FALSE, kQuitPatience - passed, QS_SENDMESSAGE) ==
             WAIT_OBJECT_0 + 1) {
    MSG message;
    PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
  }
}

void HelpViewer::request(HINSTANCE module, DWORD what) {
  if (requests_->next.exchange(what) == kIdle) {
    startThread(module);
  }
}

void HelpViewer::startThread(HINSTANCE module) {
  if (thread_ != nullptr) {
    CloseHandle(thread_);
  }
  char path[MAX_PATH] = "";
  GetModuleFileNameA(module, path, sizeof path);
  auto job = std::make_unique<Job>(requests_, LoadLibraryA(path));
  DWORD id = 0;
  thread_ = job->module != nullptr ? CreateThread(nullptr, 0, work, job.get(), 0, &id) : nullptr;
  if (thread_ != nullptr) {
    job.release();
    return;
  }
  if (job->module != nullptr) {
    FreeLibrary(job->module);
  }
  requests_->next = kIdle;
}

DWORD WINAPI HelpViewer::work(void* data) {
  HMODULE module = nullptr;
  {
    const std::unique_ptr<Job> job(static_cast<Job*>(data));
    module = job->module;
    Requests& requests = *job->requests;
    DWORD taken = kTaken;
    do {
      const DWORD what = requests.next.exchange(kTaken);
      if (what != kTaken) {
        ask(requests, what);
      }
      taken = kTaken;
    } while (!requests.next.compare_exchange_strong(taken, kIdle));
  }
  FreeLibraryAndExitThread(module, 0);
  return 0;
}

// Wine starts the viewer and then does not wait until it can be asked.
void HelpViewer::ask(const Requests& requests, DWORD what) {
  const UINT command = what == kQuit ? HELP_QUIT : HELP_CONTEXT;
  const DWORD context = what == kQuit ? 0 : what;
  const bool there = FindWindowA(kViewerClass, nullptr) != nullptr;
  if (!WinHelpA(requests.owner, requests.path.c_str(), command, context) && !there &&
      waitForViewer()) {
    WinHelpA(requests.owner, requests.path.c_str(), command, context);
  }
}

}  // namespace kesto
