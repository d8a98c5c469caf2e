// The system's help viewer, asked on a thread of its own: a request lasts as long as the viewer
// needs to start, or to be answered when it asks something itself, such as where the help file
// is. What is asked meanwhile takes the place of what still waits. The user-interface thread
// asks; the thread keeps the module loaded to its own end.
#pragma once

#include <windows.h>

#include <atomic>
#include <memory>
#include <string>

namespace kesto {

class HelpViewer {
 public:
  // owner is the window argument of each request, path the help file.
  HelpViewer(HWND owner, const char* path);
  ~HelpViewer();
  HelpViewer(const HelpViewer&) = delete;
  HelpViewer& operator=(const HelpViewer&) = delete;

  // A context number, not 0. module stays loaded meanwhile; null is the program itself.
  void show(HINSTANCE module, DWORD context);
  // Tells the viewer that nothing more is to come, and waits until it has heard of it, but not
  // for one that waits for an answer itself.
  void quit(HINSTANCE module);

 private:
  struct Requests {
    HWND owner;
    std::string path;
    // What is to be asked next, or one of the two below.
    std::atomic<DWORD> next;
  };
  struct Job {
    std::shared_ptr<Requests> requests;
    HMODULE module;
  };
  static constexpr DWORD kIdle = 0;  // no thread is at work
  static constexpr DWORD kTaken = 0xFFFFFFFF;
  static constexpr DWORD kQuit = 0xFFFFFFFE;

  void request(HINSTANCE module, DWORD what);
  void startThread(HINSTANCE module);
  static DWORD WINAPI work(void* data);
  static void ask(const Requests& requests, DWORD what);

  std::shared_ptr<Requests> requests_;
  HANDLE thread_ = nullptr;
};

}  // namespace kesto
