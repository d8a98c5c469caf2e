#include "workbench/windows/message_box.h"

#include "workbench/windows/names.h"

namespace workbench {

int showBox(HWND frame, const std::string& text, UINT buttons) {
  if (IsWindow(frame) == 0) {
    return 0;
  }
  const HWND owner = IsWindowEnabled(frame) != 0 ? frame : GetLastActivePopup(frame);
  const int answer = MessageBoxA(owner, text.c_str(), kProgramCaption, buttons);
  return IsWindow(frame) != 0 ? answer : 0;
}

}  // namespace workbench
