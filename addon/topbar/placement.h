// Where the bar stands on the screen. Plain numbers, in pixels.
#pragma once

namespace kesto {

struct ScreenMetrics {
  int screen_width;
  int screen_height;
  int menu_height;  // one row of a menu bar
  int caption_height;
};

struct BarPlacement {
  int x;
  int y;
  int width;
  int height;
};

// The look with the Windows 95 styles has a thin border, the older one a
// caption that is pushed above the screen's edge.
BarPlacement creationPlacement(const ScreenMetrics& metrics, bool new_shell);
// One menu row between the margins.
BarPlacement normalPlacement(const ScreenMetrics& metrics, bool new_shell, int left_margin,
                             int right_margin);

// The bar does not grow beyond this height.
int highestBar(const ScreenMetrics& metrics);
// The height that shows every row of the menu bar and nothing of the client
// area, from a height reached at which the client area had that height.
int expandedHeight(int reached_height, int client_height);

}  // namespace kesto
