#include "workbench/windows/menu_columns.h"

#include <algorithm>

#include "workbench/windows/wine.h"

namespace workbench {
namespace {

constexpr UINT kBreaks = MFT_MENUBREAK | MFT_MENUBARBREAK;
constexpr UINT kTypeOnly = 0x100;  // MIIM_FTYPE: the text stays; younger than our headers
constexpr int kBorders = 8;        // pixels above and below the rows

UINT typeOf(HMENU popup, int position) {
  MENUITEMINFOA item = {};
  item.cbSize = sizeof item;
  item.fMask = kTypeOnly;
  GetMenuItemInfoA(popup, static_cast<UINT>(position), TRUE, &item);
  return item.fType;
}

void setBreak(HMENU popup, int position, bool breaks) {
  MENUITEMINFOA item = {};
  item.cbSize = sizeof item;
  item.fMask = kTypeOnly;
  item.fType = (typeOf(popup, position) & ~kBreaks) | (breaks ? MFT_MENUBARBREAK : 0U);
  SetMenuItemInfoA(popup, static_cast<UINT>(position), TRUE, &item);
}

// After the owner has filled the popup, and before it is laid out.
LRESULT CALLBACK onReturned(int code, WPARAM wparam, LPARAM lparam) {
  if (code == HC_ACTION) {
    const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lparam);
    if (message.message == WM_INITMENUPOPUP) {
      const int height = GetSystemMetrics(SM_CYSCREEN) - kBorders;
      fitColumns(reinterpret_cast<HMENU>(message.wParam),
                 std::max(1, height / std::max(1, GetSystemMetrics(SM_CYMENU))));
    }
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

}  // namespace

void fitColumns(HMENU popup, int rows) {
  const int items = GetMenuItemCount(popup);
  int longest = 0;
  int column = 0;
  bool broken = false;
  for (int i = 0; i < items; ++i) {
    const bool breaks = i > 0 && (typeOf(popup, i) & kBreaks) != 0;
    broken = broken || breaks;
    column = breaks ? 1 : column + 1;
    longest = std::max(longest, column);
  }
  if (!broken || longest <= rows) {
    return;
  }
  for (int i = 0; i < items; ++i) {
    setBreak(popup, i, i > 0 && i % rows == 0);
  }
}

MenuColumns::MenuColumns() {
  if (isOnWine()) {
    hook_ = SetWindowsHookExA(WH_CALLWNDPROCRET, onReturned, nullptr, GetCurrentThreadId());
  }
}

MenuColumns::~MenuColumns() {
  if (hook_ != nullptr) {
    UnhookWindowsHookEx(hook_);
  }
}

}  // namespace workbench
