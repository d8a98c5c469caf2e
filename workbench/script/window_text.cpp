#include "workbench/script/window_text.h"

namespace workbench {

std::string windowClass(HWND window) {
  char name[80];
  int length = GetClassNameA(window, name, sizeof name);
  return std::string(name, length > 0 ? static_cast<size_t>(length) : 0);
}

std::string windowText(HWND window) {
  LRESULT length = IsWindow(window) ? SendMessageA(window, WM_GETTEXTLENGTH, 0, 0) : 0;
  if (length <= 0) {
    return {};
  }
  std::string text(static_cast<size_t>(length) + 1, '\0');
  LRESULT got =
      SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(got > 0 && got <= length ? static_cast<size_t>(got) : 0);
  return text;
}

}  // namespace workbench
