// The dialog "Strike any key...": it takes the next key away from whatever else would act on
// it. User-interface thread.
#pragma once

#include <windows.h>

#include <string>

namespace kesto {

struct NamedKey {
  unsigned code;     // 0 for none
  std::string text;  // as a person reads it
};

// Shows the key and replaces it by the one that is struck; false, and the key as it was, when
// the dialog was left without one. Nothing that was there before is certain on return.
bool captureKey(HWND owner, NamedKey& key);

// "Ctrl+Shift+F5": what is held down with a key, then the key itself.
std::string keyText(unsigned code, const std::string& key_name);

}  // namespace kesto
