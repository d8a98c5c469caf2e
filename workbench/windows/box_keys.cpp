#include "workbench/windows/box_keys.h"

#include <cstring>

namespace workbench {
namespace {

constexpr int kBoxTextId = 0xFFFF;

struct Search {
  WPARAM key;
  HWND found;
};

bool isPushButton(HWND control) {
  return (SendMessageA(control, WM_GETDLGCODE, 0, 0) &
          (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

BOOL CALLBACK lookAt(HWND control, LPARAM state) {
  auto* search = reinterpret_cast<Search*>(state);
  char text[80] = {};
  GetWindowTextA(control, text, sizeof text);
  const char* mark = std::strchr(text, '&');
  const bool suits = mark != nullptr && isPushButton(control);
  const auto letter = suits ? static_cast<unsigned char>(mark[1]) : 0U;
  if (letter != 0 &&
      reinterpret_cast<ULONG_PTR>(CharUpperA(reinterpret_cast<LPSTR>(letter))) == search->key) {
    search->found = control;
  }
  return search->found == nullptr ? TRUE : FALSE;
}

}  // namespace

BoxKeys::BoxKeys() : hook_(SetWindowsHookExA(WH_MSGFILTER, watch, nullptr, GetCurrentThreadId())) {}

BoxKeys::~BoxKeys() {
  UnhookWindowsHookEx(hook_);
}

LRESULT CALLBACK BoxKeys::watch(int code, WPARAM w, LPARAM l) {
  const auto* message = reinterpret_cast<const MSG*>(l);
  if (code == MSGF_DIALOGBOX && message->message == WM_KEYDOWN && GetKeyState(VK_CONTROL) >= 0) {
    HWND box = GetParent(message->hwnd);
    Search search = {message->wParam, nullptr};
    // Other dialogs have controls of that id as well, and fields in which letters are typed.
    if (box != nullptr && GetDlgItem(box, kBoxTextId) != nullptr && isPushButton(message->hwnd)) {
      EnumChildWindows(box, lookAt, reinterpret_cast<LPARAM>(&search));
    }
    if (search.found != nullptr) {
      PostMessageA(box, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(search.found), BN_CLICKED),
                   reinterpret_cast<LPARAM>(search.found));
      return 1;
    }
  }
  return CallNextHookEx(nullptr, code, w, l);
}

}  // namespace workbench
