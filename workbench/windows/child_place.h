// Where a new window inside the frame first stands. Plain values, in pixels of the
// area that it shares with the others.
#pragma once

#include <vector>

namespace workbench {

struct Area {
  int left = 0, top = 0, right = 0, bottom = 0;
  int width() const { return right - left; }
  int height() const { return bottom - top; }
};

// Beside the panes, a step further in than the windows of its kind (the peers). What
// the panes leave is taken where it is large enough to work in, else all of it.
Area placeForNew(const Area& whole, const std::vector<Area>& panes, const std::vector<Area>& peers,
                 int step);

}  // namespace workbench
