#include "workbench/windows/mdi_pane.h"

namespace workbench {

bool MdiPane::attach(HWND mdi_client, HINSTANCE program) {
  mdi_client_ = mdi_client;
  program_ = program;
  return registerChildClass(class_name_, program, COLOR_BTNFACE);
}

bool MdiPane::active() const {
  return window() != nullptr &&
         reinterpret_cast<HWND>(SendMessageA(mdi_client_, WM_MDIGETACTIVE, 0, 0)) == window();
}

bool MdiPane::show() {
  if (window() != nullptr) {
    if (IsIconic(window()) != 0) {
      SendMessageA(mdi_client_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(window()), 0);
    }
    SendMessageA(mdi_client_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(window()), 0);
    return true;
  }
  RECT client = {};
  GetClientRect(mdi_client_, &client);
  const RECT place = firstPlace(client);
  return createChild(mdi_client_, program_, class_name_, title_, place.left, place.top,
                     place.right - place.left, place.bottom - place.top);
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
  return DefMDIChildProcA(window(), message, w, l);
}

}  // namespace workbench
