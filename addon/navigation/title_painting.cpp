// The title-bar buttons on the screen: drawing and hit testing.
#include "addon/ide/environment.h"
#include "addon/ide/gdi_handles.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/quick_find.h"

namespace kesto {
namespace {

constexpr int kTitleSize = 512;

// Width of the window's title in the system font.
int titleWidth(HWND window) {
  char title[kTitleSize] = "";
  const int length = GetWindowTextA(window, title, sizeof title);
  const WindowDc dc(window);
  const Selection font(dc.get(), GetStockObject(SYSTEM_FONT));
  SIZE size = {};
  GetTextExtentPoint32A(dc.get(), title, length, &size);
  return size.cx;
}

bool onLeftSide() {
  return quickFind != nullptr && quickFind->leftSide();
}

}  // namespace

int EditorNavigation::buttonsLeftOf(HWND editor, const RECT& frame) const {
  const bool left_side = onLeftSide();
  return buttonsLeft(geometry_, left_side, frame.right - frame.left,
                     left_side ? titleWidth(editor) : 0);
}

void EditorNavigation::paint(HWND editor) const {
  RECT frame = {};
  if (GetWindowRect(editor, &frame) == 0) {
    return;
  }
  int x = buttonsLeftOf(editor, frame);
  const WindowDc dc(editor);
  const MemoryDc memory(dc.get());
  for (const String& name : bitmap_names_) {
    if (buttonShows(x)) {
      const OwnedBitmap bitmap(LoadBitmapA(addonEnvironment->instance, name.text()));
      const Selection selected(memory.get(), bitmap.get());
      BitBlt(dc.get(), x, geometry_.top, geometry_.width, geometry_.height, memory.get(), 0, 0,
             SRCCOPY);
    }
    x += geometry_.width;
  }
}

int EditorNavigation::hitTest(HWND editor, POINT& point) const {
  RECT frame = {};
  if (GetWindowRect(editor, &frame) == 0) {
    return -1;
  }
  const bool left_side = onLeftSide();
  const ButtonHit hit = kesto::hitTest(geometry_, {frame.left, frame.top, frame.right}, left_side,
                                       left_side ? titleWidth(editor) : 0,
                                       GetSystemMetrics(SM_CYCAPTION), point.x, point.y);
  if (hit.button >= 0) {
    point = {hit.x, hit.y};
  }
  return hit.button;
}

}  // namespace kesto
