// The settings of the searches: file masks, shortcut keys, and the side of the
// title-bar buttons. One object, created and destroyed by the lifecycle; user-interface
// thread only.
#pragma once

#include <windows.h>

#include "addon/foundation/string.h"

namespace kesto {

enum class Search : int { kFunction = 0, kMethod = 1, kClass = 2, kCross = 3 };
inline constexpr int kSearchCount = 4;

class QuickFind {
 public:
  // Reads section "QuickFind". The owner is the bar window.
  explicit QuickFind(HWND owner);
  // Writes it back.
  ~QuickFind();
  QuickFind(const QuickFind&) = delete;
  QuickFind& operator=(const QuickFind&) = delete;

  bool leftSide() const { return left_side_ != 0; }
  // The shortcut's key code, 0 for none.
  unsigned short key(Search search) const { return keys_[static_cast<int>(search)]; }
  // The shortcut as the user reads it.
  const String& keyText(Search search) const { return key_texts_[static_cast<int>(search)]; }

 private:
  HWND owner_;
  String function_mask_;
  String include_mask_;
  int recurse_;
  int left_side_;
  unsigned short keys_[kSearchCount];
  String key_texts_[kSearchCount];
};

extern QuickFind* quickFind;

}  // namespace kesto
