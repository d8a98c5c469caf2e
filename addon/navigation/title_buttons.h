// Where the three buttons stand on an editor's title bar. Plain numbers in
// pixels; window handles and drawing are the shell's.
#pragma once

namespace kesto {

inline constexpr int kTitleButtons = 3;
inline constexpr int kFunctionsButton = 0;
inline constexpr int kIncludesButton = 1;
inline constexpr int kQuickFindButton = 2;

struct ButtonGeometry {
  int right_margin;    // from the window's right edge to the last button
  int top;             // from the window's top edge
  int width;           // of one button
  int height;          // of one button
  int popup_y_adjust;  // added to a popup's top
  int popup_x_adjust;  // added to a popup's left
  int look;            // 1 in the Windows 95 look, 0 in the older one
};

const ButtonGeometry& buttonGeometry(bool windows95_look);

// The left edge of button 0, from the window's left edge. title_width: of the
// title's text in the system font; it counts on the left side of the new look only.
int buttonsLeft(const ButtonGeometry& geometry, bool left_side, int window_width, int title_width);

// Whether a button is there at all whose left edge is that far from the window's: in a
// narrow window the first ones would cover the system menu.
bool buttonShows(int left);

struct WindowEdges {  // in screen coordinates
  int left;
  int top;
  int right;
};

struct ButtonHit {
  int button;  // 0 to 2; -1 for none, the point then has no meaning
  int x;       // where its popup opens, in screen coordinates
  int y;
};

// The button under the screen point (x, y).
ButtonHit hitTest(const ButtonGeometry& geometry, const WindowEdges& window, bool left_side,
                  int title_width, int caption_height, int x, int y);

}  // namespace kesto
