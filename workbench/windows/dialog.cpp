#include "workbench/windows/dialog.h"

#include <algorithm>

namespace workbench {

int Dialog::run(HWND owner, int template_id) {
  return static_cast<int>(DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(template_id),
                                          owner, dialogProc, reinterpret_cast<LPARAM>(this)));
}

INT_PTR CALLBACK Dialog::dialogProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_INITDIALOG) {
    auto* self = reinterpret_cast<Dialog*>(l);
    SetWindowLongA(window, DWL_USER, static_cast<LONG>(l));
    self->window_ = window;
    self->fill();
    self->centre();
    return TRUE;
  }
  auto* self = reinterpret_cast<Dialog*>(GetWindowLongA(window, DWL_USER));
  if (self == nullptr) {
    return FALSE;
  }
  if (message == WM_TIMER) {
    self->timer();
    return TRUE;
  }
  if (message == WM_HELP && self->item(IDHELP) != nullptr) {
    self->command(IDHELP, BN_CLICKED);
    return TRUE;
  }
  if (message != WM_COMMAND) {
    return FALSE;
  }
  const HWND page = l != 0 ? GetParent(reinterpret_cast<HWND>(l)) : window;
  if (page != window) {
    // Enter on a button of a page is told to the dialog around it.
    SendMessageA(page, message, w, l);
  } else if (LOWORD(w) == IDOK) {
    if (self->accept()) {
      EndDialog(window, IDOK);
    }
  } else if (LOWORD(w) == IDCANCEL) {
    EndDialog(window, IDCANCEL);
  } else {
    self->command(LOWORD(w), HIWORD(w));
  }
  return TRUE;
}

void Dialog::command(int, int) {}

void Dialog::centre() {
  RECT over = {};
  RECT own = {};
  GetWindowRect(GetParent(window_), &over);
  GetWindowRect(window_, &own);
  const int x = (over.left + over.right - (own.right - own.left)) / 2;
  const int y = (over.top + over.bottom - (own.bottom - own.top)) / 2;
  SetWindowPos(window_, nullptr, std::max(0, x), std::max(0, y), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

std::string Dialog::text(int control) const {
  char buffer[1024] = {};
  GetDlgItemTextA(window_, control, buffer, sizeof buffer);
  return buffer;
}

void Dialog::setText(int control, const std::string& text) {
  SetDlgItemTextA(window_, control, text.c_str());
}

}  // namespace workbench
