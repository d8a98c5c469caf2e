#include "workbench/windows/mdi_child.h"

#include "workbench/windows/window_class.h"

namespace workbench {

MdiChild::~MdiChild() {
  if (window_ != nullptr) {
    SetWindowLongA(window_, 0, 0);
  }
}

bool MdiChild::registerChildClass(const char* name, HINSTANCE instance, int background) {
  WNDCLASSA info = windowClass(name, windowProc, instance, background);
  info.hIcon = LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION));
  return registerOnce(info);
}

bool MdiChild::createChild(HWND mdi_client, HINSTANCE instance, const char* class_name,
                           const char* title, int x, int y, int width, int height) {
  instance_ = instance;
  MDICREATESTRUCTA info = {};
  info.szClass = class_name;
  info.szTitle = title;
  info.hOwner = instance;
  info.x = x;
  info.y = y;
  info.cx = width;
  info.cy = height;
  info.lParam = reinterpret_cast<LPARAM>(this);
  // In front of a maximized window another is so too.
  BOOL maximized = FALSE;
  SendMessageA(mdi_client, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized));
  info.style = maximized != FALSE ? WS_MAXIMIZE : 0;
  return SendMessageA(mdi_client, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&info)) != 0;
}

LRESULT CALLBACK MdiChild::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<MdiChild*>(GetWindowLongA(window, 0));
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<CREATESTRUCTA*>(l);
    const auto* mdi = static_cast<MDICREATESTRUCTA*>(create->lpCreateParams);
    self = reinterpret_cast<MdiChild*>(mdi->lParam);
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
    self->windowGone();
    return result;
  }
  return self->handleMessage(message, w, l);
}

}  // namespace workbench
