// The columns of the task list's list box: tab stops, headings above them, and a font in
// which a row with two dates fits. The same stops lie closer in a smaller font.
// User-interface thread only.
#pragma once

#include <windows.h>

#include <string_view>

#include "addon/ide/gdi_handles.h"
#include "addon/tasks/row_extent.h"
#include "addon/tasks/task_date.h"

namespace kesto {

class TaskColumns {
 public:
  // Once for each opening of the dialog; the font stays good until the next.
  void setUp(HWND dialog, const DateFormat& format);
  // Pixels that a row takes up.
  int extentOf(std::string_view row) const;

 private:
  static constexpr int kStopCount = 5;

  // Measures rows in a font.
  void measure(HWND list, HFONT font);
  bool fits(HWND list, const std::string& dates) const;
  void placeHeadings(HWND dialog, HWND list, const std::string& dates) const;

  OwnedFont font_;
  int stops_[kStopCount] = {};
  RowMetrics row_ = {{}, stops_, 0};
};

}  // namespace kesto
