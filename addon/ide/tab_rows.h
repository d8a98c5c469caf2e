// The columns of a list box whose rows have tabs: its tab stops, headings above them, and
// how far it scrolls sideways. Made once the list has its font; user-interface thread only.
#pragma once

#include <windows.h>

#include <span>
#include <string_view>
#include <vector>

#include "addon/ide/row_extent.h"

namespace kesto {

class TabRows {
 public:
  // Gives the list its stops, in dialog units.
  TabRows(HWND list, std::span<const int> stops);
  TabRows(const TabRows&) = delete;
  TabRows& operator=(const TabRows&) = delete;

  // Puts a control of the same dialog over each column, from the first one on.
  void placeHeadings(std::span<const int> ids) const;
  // Pixels that a row takes up.
  int extentOf(std::string_view row) const;

 private:
  HWND list_;
  std::vector<int> stops_;  // pixels
  RowMetrics metrics_;
};

}  // namespace kesto
