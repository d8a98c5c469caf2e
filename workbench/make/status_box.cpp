#include "workbench/make/status_box.h"

#include <algorithm>

#include "workbench/windows/command_ids.h"

namespace workbench {
namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kTickMs = 20;

}  // namespace

void StatusBox::open(HWND owner, const std::string& command) {
  running_ = true;
  if (window_ == nullptr) {
    CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_MAKE), owner, dialogProc,
                       reinterpret_cast<LPARAM>(this));
  }
  SetDlgItemTextA(window_, IDC_MAKE_COMMAND, command.c_str());
  SetDlgItemTextA(window_, IDCANCEL, "Cancel");
  SetTimer(window_, kTimer, kTickMs, nullptr);
  ShowWindow(window_, SW_SHOWNOACTIVATE);
}

void StatusBox::show(const std::string& state, int lines, int warnings, int errors) {
  const auto set = [this](int id, const std::string& text) {
    char before[300] = {};
    GetDlgItemTextA(window_, id, before, sizeof before);
    // Setting the same text again would flicker.
    if (text != before) {
      SetDlgItemTextA(window_, id, text.c_str());
    }
  };
  set(IDC_MAKE_STATE, state);
  set(IDC_MAKE_LINES, std::to_string(lines));
  set(IDC_MAKE_FOUND, std::to_string(errors) + (errors == 1 ? " error, " : " errors, ") +
                          std::to_string(warnings) + (warnings == 1 ? " warning" : " warnings"));
}

void StatusBox::ended() {
  running_ = false;
  if (window_ != nullptr) {
    KillTimer(window_, kTimer);
    SetDlgItemTextA(window_, IDCANCEL, "OK");
  }
}

void StatusBox::close() {
  running_ = false;
  if (window_ != nullptr) {
    DestroyWindow(window_);
  }
}

INT_PTR CALLBACK StatusBox::dialogProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_INITDIALOG) {
    SetWindowLongA(window, DWL_USER, static_cast<LONG>(l));
    reinterpret_cast<StatusBox*>(l)->window_ = window;
    RECT over = {};
    RECT own = {};
    GetWindowRect(GetParent(window), &over);
    GetWindowRect(window, &own);
    // Low, so that the text being worked on stays in sight.
    const LONG x = (over.left + over.right - (own.right - own.left)) / 2;
    const LONG y = over.top + (over.bottom - over.top) * 3 / 5;
    SetWindowPos(window, nullptr, std::max(0L, x), std::max(0L, y), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return FALSE;
  }
  auto* self = reinterpret_cast<StatusBox*>(GetWindowLongA(window, DWL_USER));
  if (self == nullptr) {
    return FALSE;
  }
  switch (message) {
    case WM_TIMER:
      self->tick_();
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(w) != IDCANCEL && LOWORD(w) != IDOK) {
        return FALSE;
      }
      if (self->running_) {
        self->cancel_();
      } else {
        self->close();
      }
      return TRUE;
    case WM_NCDESTROY:
      self->window_ = nullptr;
      SetWindowLongA(window, DWL_USER, 0);
      return FALSE;
    default:
      return FALSE;
  }
}

}  // namespace workbench
