// What the user set for all editors. Plain values.
#pragma once

namespace workbench {

inline constexpr int kLeastTabWidth = 1;
inline constexpr int kMostTabWidth = 16;
inline constexpr int kLeastFontPoints = 6;
inline constexpr int kMostFontPoints = 36;

struct EditorSettings {
  int tab_width = 4;  // cells
  int font_points = 10;
  bool line_numbers = true;  // in a margin left of the text
  bool colours = true;       // by the words of C++
};

}  // namespace workbench
