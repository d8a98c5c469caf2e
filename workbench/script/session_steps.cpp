// How the program is asked to end, whatever is open.

#include <algorithm>
#include <vector>

#include "workbench/events/event_log.h"
#include "workbench/main_window.h"
#include "workbench/script/steps.h"

namespace workbench {
namespace {

BOOL CALLBACK collectWindow(HWND window, LPARAM data) {
  reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
  return TRUE;
}

}  // namespace

StepResult stepCloseFrame(StepTry& step) {
  PostMessageA(step.stage.window.frame(), WM_CLOSE, 0, 0);
  return StepResult::kDone;
}

// As the system does it: every window is asked, up to the first that refuses, and
// whoever was asked hears how it ended.
StepResult stepEndSession(StepTry& step) {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), collectWindow, reinterpret_cast<LPARAM>(&windows));
  const auto refuses = [](HWND window) {
    return IsWindow(window) && SendMessageA(window, WM_QUERYENDSESSION, 0, 0) == 0;
  };
  const auto refused = std::find_if(windows.begin(), windows.end(), refuses);
  const bool ends = refused == windows.end();
  step.stage.log.emit(Event("session").text("state", ends ? "ending" : "refused"));
  for (auto window = windows.begin(); window != refused; ++window) {
    if (IsWindow(*window)) {
      SendMessageA(*window, WM_ENDSESSION, ends ? TRUE : FALSE, 0);
    }
  }
  return StepResult::kDone;
}

}  // namespace workbench
