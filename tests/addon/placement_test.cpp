#include "addon/topbar/placement.h"

#include "doctest.h"

using kesto::BarPlacement;

namespace {

// A screen of 800 by 600 with menu rows of 19 and captions of 18 pixels.
constexpr kesto::ScreenMetrics kScreen = {800, 600, 19, 18};

void checkPlace(const BarPlacement& place, int x, int y, int width, int height) {
  CHECK(place.x == x);
  CHECK(place.y == y);
  CHECK(place.width == width);
  CHECK(place.height == height);
}

}  // namespace

TEST_CASE("the bar at its creation spans the screen's top edge") {
  checkPlace(kesto::creationPlacement(kScreen, true), -1, -2, 802, 20);
  checkPlace(kesto::creationPlacement(kScreen, false), -1, -21, 802, 38);
}

TEST_CASE("the bar stands between its margins") {
  checkPlace(kesto::normalPlacement(kScreen, true, -1, 58), -1, -2, 743, 20);
  checkPlace(kesto::normalPlacement(kScreen, false, 17, 37), 17, -21, 746, 38);
  checkPlace(kesto::normalPlacement(kScreen, true, 0, 0), 0, -2, 800, 20);
}

TEST_CASE("the expanded bar shows its rows and nothing of its client area") {
  // Reached with 17 pixels of client area below the last row.
  CHECK(kesto::expandedHeight(58, 17) == 40);
  CHECK(kesto::highestBar(kScreen) == 520);
}
