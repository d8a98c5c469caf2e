#include "workbench/windows/child_place.h"

#include <algorithm>
#include <cstddef>

namespace workbench {
namespace {

constexpr int kLeastWidth = 240;
constexpr int kLeastHeight = 120;
constexpr int kSteps = 5;

bool apart(const Area& a, const Area& b) {
  return a.right <= b.left || b.right <= a.left || a.bottom <= b.top || b.bottom <= a.top;
}

bool largeEnough(const Area& area) {
  return area.width() >= kLeastWidth && area.height() >= kLeastHeight;
}

// The largest part of the area to one side of the pane.
Area beside(const Area& area, const Area& pane) {
  if (apart(area, pane)) {
    return area;
  }
  const Area sides[] = {{pane.right, area.top, area.right, area.bottom},
                        {area.left, area.top, pane.left, area.bottom},
                        {area.left, area.top, area.right, pane.top},
                        {area.left, pane.bottom, area.right, area.bottom}};
  Area best;
  for (const Area& side : sides) {
    const bool larger = side.width() * side.height() > best.width() * best.height();
    best = largeEnough(side) && (larger || !largeEnough(best)) ? side : best;
  }
  return largeEnough(best) ? best : area;
}

}  // namespace

Area placeForNew(const Area& whole, const std::vector<Area>& panes, const std::vector<Area>& peers,
                 int step) {
  Area room = whole;
  for (const Area& pane : panes) {
    room = beside(room, pane);
  }
  const int steps = std::clamp(
      std::min(room.width() - kLeastWidth, room.height() - kLeastHeight) / step + 1, 1, kSteps);
  // The place on the way down where the fewest stand already.
  int best = 0;
  auto fewest = static_cast<std::ptrdiff_t>(peers.size()) + 1;
  for (int i = 0; i < steps; ++i) {
    const auto there = std::count_if(peers.begin(), peers.end(), [&](const Area& peer) {
      return peer.left == room.left + i * step && peer.top == room.top + i * step;
    });
    if (there < fewest) {
      fewest = there;
      best = i;
    }
  }
  const int left = room.left + best * step;
  const int top = room.top + best * step;
  const int inset = (steps - 1) * step;
  return {left, top, left + std::max(kLeastWidth, room.width() - inset),
          top + std::max(kLeastHeight, room.height() - inset)};
}

}  // namespace workbench
