// Generates the documentation site of the open project on a thread of its own, and
// shows it. One object, created and destroyed by the lifecycle. Everything but the
// generation itself runs on the user-interface thread: the generating thread knows
// copies of what it needs, and tells of its progress by posting to the bar.
#pragma once

#include <windows.h>

#include <atomic>
#include <string>

#include "addon/html/site_generation.h"

namespace kesto {

class DocumentationRun : private SiteProgress {
 public:
  // bar: the window that the progress is posted to, as kDocumentationMessage.
  explicit DocumentationRun(HWND bar) : bar_(bar) {}
  ~DocumentationRun() override;
  DocumentationRun(const DocumentationRun&) = delete;
  DocumentationRun& operator=(const DocumentationRun&) = delete;

  // Starts a generation. One that runs is told of in a box, and nothing starts; nothing
  // happens without a project.
  void generate();
  // Waits for the generation that runs, and goes on putting on the status line how far it
  // is: a site left half written would have links that lead nowhere.
  void finish();
  // Opens the site in the user's browser.
  void show();
  // Puts on the status line how far the generation is.
  void showProgress();

 private:
  enum class Phase : int { kIdle, kReading, kWriting, kDone, kStopped };

  static DWORD WINAPI work(void* run);
  void reading(int files) override;
  void writing(int pages, int all) override;
  void tell(Phase phase, int done, int all);
  void post();

  HWND bar_;
  HANDLE thread_ = nullptr;
  SiteRequest request_;  // the generating thread's alone while one runs
  DWORD told_ = 0;       // milliseconds of the system's clock, likewise
  std::string shown_;    // the latest progress on the status line
  std::atomic<Phase> phase_ = Phase::kIdle;
  std::atomic<int> done_ = 0;
  std::atomic<int> all_ = 0;
};

extern DocumentationRun* documentationRun;

}  // namespace kesto
