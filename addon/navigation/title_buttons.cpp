#include "addon/navigation/title_buttons.h"

#include <algorithm>

namespace kesto {

namespace {

constexpr int kLeftEdge = 23;  // beside the window's system menu

constexpr ButtonGeometry kWindows95Look = {58, 4, 24, 18, 2, 1, 1};
constexpr ButtonGeometry kOlderLook = {41, 4, 24, 18, 0, 0, 0};

}  // namespace

const ButtonGeometry& buttonGeometry(bool windows95_look) {
  return windows95_look ? kWindows95Look : kOlderLook;
}

int buttonsLeft(const ButtonGeometry& geometry, bool left_side, int window_width, int title_width) {
  const int right_position = window_width - geometry.right_margin - kTitleButtons * geometry.width;
  if (!left_side) {
    return right_position;
  }
  return geometry.look != 0 ? std::min(right_position, title_width + kLeftEdge) : kLeftEdge;
}

bool buttonShows(int left) {
  return left >= kLeftEdge;
}

ButtonHit hitTest(const ButtonGeometry& geometry, const WindowEdges& window, bool left_side,
                  int title_width, int caption_height, int x, int y) {
  constexpr ButtonHit kNoHit = {-1, 0, 0};
  const int top = window.top + geometry.top;
  if (y < top || y >= top + geometry.height) {
    return kNoHit;
  }
  const int left =
      window.left + buttonsLeft(geometry, left_side, window.right - window.left, title_width);
  if (x < left) {
    return kNoHit;
  }
  const int button = (x - left) / geometry.width;
  if (button >= kTitleButtons || !buttonShows(left + button * geometry.width - window.left)) {
    return kNoHit;
  }
  return {button, left + button * geometry.width + geometry.popup_x_adjust - 2,
          window.top + caption_height + geometry.popup_y_adjust + 1};
}

}  // namespace kesto
