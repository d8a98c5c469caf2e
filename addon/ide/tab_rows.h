// The rows of a list box that have tabs: its tab stops, the headings over them, a font in
// which the rows fit, and the rows themselves, with how far they scroll sideways. User-interface
// thread only.
#pragma once

#include <windows.h>

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "addon/ide/gdi_handles.h"
#include "addon/ide/row_extent.h"

namespace kesto {

class TabRows {
 public:
  TabRows() = default;
  TabRows(const TabRows&) = delete;
  TabRows& operator=(const TabRows&) = delete;

  // Once for each opening of the dialog; the font stays good until the next. The stops are
  // in quarters of an average character, and so lie closer in a smaller font: the list gets
  // one where this row would not fit beside a scroll bar otherwise.
  void setUp(HWND list, std::span<const int> stops, std::string_view row);
  // To be called while the dialog is destroyed.
  void giveBack() const;
  // Puts a text of the same dialog, no wider than it is, over what follows this beginning of
  // a row.
  void placeHeading(int id, std::string_view beginning) const;
  // Sends a message straight to the list's procedure: the hooks of the thread look at every
  // message that is sent, and of thousands that is felt.
  LRESULT tell(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  // These rows in place of those that are there; append adds the text of a row to an empty
  // one. The caller has the list redrawn.
  void replace(int count, const std::function<void(int row, std::string& text)>& append) const;

 private:
  // Pixels that a row takes up.
  int extentOf(std::string_view row) const;
  void measure(HFONT font);
  bool fits(std::string_view row) const;

  HWND list_ = nullptr;
  OwnedFont font_;
  std::span<const int> units_;
  std::vector<int> stops_;  // in pixels
  RowMetrics metrics_ = {};
};

}  // namespace kesto
