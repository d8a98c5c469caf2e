// Key codes: a shortcut as one number, the virtual key plus what is held with it.
#pragma once

namespace kesto {

inline constexpr unsigned kKeyCodeShift = 1000;
inline constexpr unsigned kKeyCodeAlt = 2000;
inline constexpr unsigned kKeyCodeCtrl = 4000;

// What is read in place of a key's name where there is none.
inline constexpr char kNoKeyText[] = "???";

// The virtual key of a key code, or of a virtual key.
constexpr unsigned virtualKeyOf(unsigned code) {
  return code % 1000;
}

constexpr unsigned keyCode(unsigned virtual_key, bool ctrl, bool alt, bool shift) {
  return virtualKeyOf(virtual_key) + (ctrl ? kKeyCodeCtrl : 0) + (alt ? kKeyCodeAlt : 0) +
         (shift ? kKeyCodeShift : 0);
}

}  // namespace kesto
