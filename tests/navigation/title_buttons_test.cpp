#include "addon/navigation/title_buttons.h"

#include "doctest.h"

namespace kesto {

TEST_CASE("where the buttons begin") {
  const struct {
    bool windows95, left_side;
    int window_width, title_width, left;
  } cases[] = {
      {true, false, 400, 100, 270},  // 400 - 58 - 3 * 24
      {false, false, 400, 100, 287}, {true, true, 400, 100, 123},
      {true, true, 400, 247, 270},   {true, true, 400, 900, 270},  // a title wider than the window
      {false, true, 400, 900, 23},   {true, true, 100, 10, -30},
  };
  for (const auto& c : cases) {
    CHECK(buttonsLeft(buttonGeometry(c.windows95), c.left_side, c.window_width, c.title_width) ==
          c.left);
  }
}

TEST_CASE("which button a point hits, and where its popup opens") {
  const WindowEdges window = {100, 50, 500};  // the buttons stand at 370 or 387, rows 54 to 71
  const struct {
    bool windows95;
    int x, y, button, popup_x, popup_y;
  } cases[] = {
      {true, 370, 54, 0, 369, 72},  // 370 + 1 - 2, 50 + 19 + 2 + 1
      {true, 393, 71, 0, 369, 72},  {true, 394, 60, 1, 393, 72},  {true, 441, 60, 2, 417, 72},
      {true, 442, 60, -1, 0, 0},    {true, 369, 60, -1, 0, 0},    {true, 346, 60, -1, 0, 0},
      {true, 370, 53, -1, 0, 0},    {true, 370, 72, -1, 0, 0},    {false, 386, 60, -1, 0, 0},
      {false, 387, 60, 0, 385, 70}, {false, 458, 60, 2, 433, 70},
  };
  for (const auto& c : cases) {
    CAPTURE(c.x);
    CAPTURE(c.y);
    const ButtonHit hit = hitTest(buttonGeometry(c.windows95), window, false, 100, 19, c.x, c.y);
    CHECK(hit.button == c.button);
    CHECK(hit.x == c.popup_x);
    CHECK(hit.y == c.popup_y);
  }
  // 140 pixels wide: the buttons begin at 10, 34 and 58, and the system menu ends at 22.
  const WindowEdges narrow = {100, 50, 240};
  CHECK(hitTest(buttonGeometry(true), narrow, false, 100, 19, 130, 60).button == -1);
  CHECK(hitTest(buttonGeometry(true), narrow, false, 100, 19, 134, 60).button == 1);
  CHECK(!buttonShows(22));
  CHECK(buttonShows(23));
  CHECK(hitTest(buttonGeometry(true), window, true, 100, 19, 223, 60).button == 0);
  CHECK(hitTest(buttonGeometry(true), window, true, 100, 19, 222, 60).button == -1);
}

}  // namespace kesto
