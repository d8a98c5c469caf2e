#include "workbench/windows/window_class.h"

namespace workbench {

WNDCLASSA windowClass(const char* name, WNDPROC procedure, HINSTANCE instance, int background) {
  WNDCLASSA info = {};
  info.lpfnWndProc = procedure;
  info.cbWndExtra = sizeof(LONG);
  info.hInstance = instance;
  info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
  info.hbrBackground = reinterpret_cast<HBRUSH>(background + 1);
  info.lpszClassName = name;
  return info;
}

bool registerOnce(const WNDCLASSA& info) {
  return RegisterClassA(&info) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

}  // namespace workbench
