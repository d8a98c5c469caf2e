// What the user set for all editors. Plain values.
#pragma once

namespace workbench {

struct EditorSettings {
  int tab_width = 4;         // cells, 1 to 16
  int font_points = 10;      // 6 to 36
  bool line_numbers = true;  // in a margin left of the text
  bool colours = true;       // by the words of C++
};

}  // namespace workbench
