#include "workbench/app/mdi_pane.h"

namespace workbench {

bool registerOnce(const WNDCLASSA& info) {
  return RegisterClassA(&info) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

MdiPane::~MdiPane() {
  if (window_ != nullptr) {
    SetWindowLongA(window_, 0, 0);
  }
}

bool MdiPane::attach(HWND mdi_client, HINSTANCE instance) {
  mdi_client_ = mdi_client;
  instance_ = instance;
  WNDCLASSA info = {};
  info.lpfnWndProc = windowProc;
  info.cbWndExtra = sizeof(LONG);
  info.hInstance = instance;
  info.hIcon = LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION));
  info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  info.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  info.lpszClassName = class_name_;
  return registerOnce(info);
}

bool MdiPane::active() const {
  return window_ != nullptr &&
         reinterpret_cast<HWND>(SendMessageA(mdi_client_, WM_MDIGETACTIVE, 0, 0)) == window_;
}

bool MdiPane::show() {
  if (window_ != nullptr) {
    if (IsIconic(window_) != 0) {
      SendMessageA(mdi_client_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(window_), 0);
    }
    SendMessageA(mdi_client_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(window_), 0);
    return true;
  }
  RECT client = {};
  GetClientRect(mdi_client_, &client);
  const RECT place = firstPlace(client);
  MDICREATESTRUCTA info = {};
  info.szClass = class_name_;
  info.szTitle = title_;
  info.hOwner = instance_;
  info.x = place.left;
  info.y = place.top;
  info.cx = place.right - place.left;
  info.cy = place.bottom - place.top;
  info.lParam = reinterpret_cast<LPARAM>(this);
  return SendMessageA(mdi_client_, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&info)) != 0;
}

LRESULT CALLBACK MdiPane::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<MdiPane*>(GetWindowLongA(window, 0));
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<CREATESTRUCTA*>(l);
    const auto* mdi = static_cast<MDICREATESTRUCTA*>(create->lpCreateParams);
    self = reinterpret_cast<MdiPane*>(mdi->lParam);
    self->window_ = window;
    SetWindowLongA(window, 0, reinterpret_cast<LONG>(self));
  }
  if (self == nullptr) {
    return DefMDIChildProcA(window, message, w, l);
  }
  if (message == WM_NCDESTROY) {
    SetWindowLongA(window, 0, 0);
    const LRESULT result = DefMDIChildProcA(window, message, w, l);
    self->window_ = nullptr;
    self->paneGone();
    return result;
  }
  return self->handleMessage(message, w, l);
}

LRESULT MdiPane::handleMessage(UINT message, WPARAM w, LPARAM l) {
  LRESULT result = 0;
  if (paneMessage(message, w, l, &result)) {
    return result;
  }
  switch (message) {
    case WM_CREATE:
      return createControls() ? 0 : -1;
    case WM_SIZE:
      if (w != SIZE_MINIMIZED) {
        layOut(LOWORD(l), HIWORD(l));
      }
      break;
    case WM_SETFOCUS:
      SetFocus(focusControl());
      return 0;
    default:
      break;
  }
  return DefMDIChildProcA(window_, message, w, l);
}

}  // namespace workbench
