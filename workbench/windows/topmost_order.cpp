#include "workbench/windows/topmost_order.h"

#include <vector>

#include "workbench/windows/wine.h"

namespace workbench {
namespace {

BOOL CALLBACK addTopmost(HWND window, LPARAM data) {
  if (IsWindowVisible(window) && (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0) {
    reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
  }
  return TRUE;
}

// Each leaves the topmost band and comes back, the lowest first: a window that takes
// the place it has already is not drawn anew.
void liftTopmost() {
  std::vector<HWND> topmost;
  EnumThreadWindows(GetCurrentThreadId(), addTopmost, reinterpret_cast<LPARAM>(&topmost));
  for (auto window = topmost.rbegin(); window != topmost.rend(); ++window) {
    for (HWND band : {HWND_NOTOPMOST, HWND_TOPMOST}) {
      SetWindowPos(*window, band, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
  }
}

// The keyboard has moved when the window that has it now is told.
LRESULT CALLBACK onSent(int code, WPARAM wparam, LPARAM lparam) {
  if (code == HC_ACTION && reinterpret_cast<const CWPSTRUCT*>(lparam)->message == WM_SETFOCUS) {
    liftTopmost();
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace

TopmostOrder::TopmostOrder() {
  if (isOnWine()) {
    hook_ = SetWindowsHookExA(WH_CALLWNDPROC, onSent, nullptr, GetCurrentThreadId());
  }
}

TopmostOrder::~TopmostOrder() {
  if (hook_ != nullptr) {
    UnhookWindowsHookEx(hook_);
  }
}

}  // namespace workbench
