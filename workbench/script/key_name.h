// Keys as a script names them. Plain values.
#pragma once

#include <string_view>

namespace workbench {

struct KeyStroke {
  bool ctrl = false;
  bool alt = false;
  bool shift = false;
  int key = 0;  // a Windows virtual-key code, 1 to 254
};

// "Ctrl+Shift+F5", "Alt+F4", "Enter", "a", "vk222"; case does not matter, and a
// capital letter is the plain key ("Shift+A" types a capital). Returns false,
// with the stroke untouched, for a name that is no key.
bool parseKey(std::string_view name, KeyStroke* stroke);

}  // namespace workbench
