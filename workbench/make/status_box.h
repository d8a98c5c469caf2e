// The box that tells how a make goes: a dialog without a loop of its own, so that
// work goes on beside it. The object outlives its window. User-interface thread
// only.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace workbench {

class StatusBox {
 public:
  // cancel: the user wants the make to stop; tick: a while has passed.
  StatusBox(std::function<void()> cancel, std::function<void()> tick)
      : cancel_(std::move(cancel)), tick_(std::move(tick)) {}
  ~StatusBox() { close(); }
  StatusBox(const StatusBox&) = delete;
  StatusBox& operator=(const StatusBox&) = delete;

  // Opens it, or begins anew in the one that is open. Does not take the focus.
  void open(HWND owner, const std::string& command);
  void show(const std::string& state, int lines, int warnings, int errors);
  // From here on its button closes it, and no more ticks come.
  void ended();
  void close();
  HWND window() const { return window_; }

 private:
  static INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM w, LPARAM l);

  std::function<void()> cancel_;
  std::function<void()> tick_;
  HWND window_ = nullptr;
  bool running_ = false;
};

}  // namespace workbench
