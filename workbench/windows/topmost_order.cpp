#include "workbench/windows/topmost_order.h"

#include <vector>

#include "workbench/windows/wine.h"

namespace workbench {
namespace {

struct Above {
  HWND below;
  std::vector<HWND> windows;
};

// The windows come in their order, from the top.
BOOL CALLBACK addAbove(HWND window, LPARAM data) {
  auto* above = reinterpret_cast<Above*>(data);
  if (window == above->below) {
    return FALSE;
  }
  if (IsWindowVisible(window)) {
    above->windows.push_back(window);
  }
  return TRUE;
}

// Each changes its band and comes back, the lowest first: a window that takes the place
// it has already is not drawn anew.
void liftAbove(HWND window) {
  Above above = {GetAncestor(window, GA_ROOT), {}};
  EnumThreadWindows(GetCurrentThreadId(), addAbove, reinterpret_cast<LPARAM>(&above));
  for (auto lifted = above.windows.rbegin(); lifted != above.windows.rend(); ++lifted) {
    const bool topmost = (GetWindowLongA(*lifted, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    for (HWND band :
         {topmost ? HWND_NOTOPMOST : HWND_TOPMOST, topmost ? HWND_TOPMOST : HWND_NOTOPMOST}) {
      SetWindowPos(*lifted, band, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
  }
}

// The keyboard has moved when the window that has it now is told.
LRESULT CALLBACK onSent(int code, WPARAM wparam, LPARAM lparam) {
  const auto* sent = reinterpret_cast<const CWPSTRUCT*>(lparam);
  if (code == HC_ACTION && sent->message == WM_SETFOCUS) {
    liftAbove(sent->hwnd);
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
