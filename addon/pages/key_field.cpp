#include "addon/pages/key_field.h"

#include "addon/foundation/menu_text.h"

namespace kesto {

void KeyField::exchange(PageExchange& controls, int control, const char* help, IntegerSetting& code,
                        TextSetting& text) {
  controls.plain(control, help);
  if (controls.fills()) {
    key_ = {static_cast<unsigned>(code.value), text.value};
    SetDlgItemTextA(controls.dialog(), control, menuText(key_.text).c_str());
  } else if (controls.stores()) {
    code.value = static_cast<int>(key_.code);
    text.value = key_.text;
  }
}

bool KeyField::choose(HWND dialog, int control) {
  const NamedKey former = key_;
  if (!captureKey(dialog, key_) || IsWindow(dialog) == FALSE) {
    return false;
  }
  SetDlgItemTextA(dialog, control, menuText(key_.text).c_str());
  return key_.code != former.code || key_.text != former.text;
}

}  // namespace kesto
