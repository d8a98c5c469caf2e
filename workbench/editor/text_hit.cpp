// Where a hit stands in the window, and the mark on its line.
#include "workbench/editor/text_layout.h"
#include "workbench/editor/text_window.h"

namespace workbench {
namespace {

constexpr COLORREF kMarkTint = RGB(255, 240, 160);
// What is there, AND the brush: light paper takes the tint, dark letters stay.
constexpr DWORD kTint = 0x00A000C9;

}  // namespace

void TextWindow::showHit() {
  marked_ = caret_.line;
  if (window_ != nullptr) {
    scrollTo(topForHit(marked_, visibleLines()), left_);
    repaint();
  }
}

void TextWindow::unmark() {
  if (marked_ >= 0) {
    marked_ = -1;
    repaint();
  }
}

void TextWindow::tintMarked(HDC dc, const RECT& row) const {
  const OwnedBrush brush(CreateSolidBrush(kMarkTint));
  const HGDIOBJ old_brush = SelectObject(dc, brush.get());
  PatBlt(dc, row.left, row.top, row.right - row.left, row.bottom - row.top, kTint);
  SelectObject(dc, old_brush);
}

}  // namespace workbench
