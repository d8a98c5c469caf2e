// Which part of the text the window shows, and what its scroll bars tell of it.
#include <algorithm>

#include "workbench/editor/text_layout.h"
#include "workbench/editor/text_window.h"

namespace workbench {

int TextWindow::visibleLines() const {
  RECT area = {};
  GetClientRect(window_, &area);
  return std::max(1, static_cast<int>(area.bottom) / line_height_);
}

int TextWindow::visibleCells() const {
  RECT area = {};
  GetClientRect(window_, &area);
  return std::max(1, (static_cast<int>(area.right) - marginWidth()) / cell_width_);
}

void TextWindow::revealCaret() {
  if (!paints()) {
    return;
  }
  int top = top_;
  int left = left_;
  top = std::min(top, caret_.line);
  top = std::max(top, caret_.line - visibleLines() + 1);
  const int cell = cellOfColumn(document_.line(caret_.line), caret_.column, settings_.tab_width,
                                document_.encoding());
  if (cell < left) {
    left = std::max(0, cell - 8);
  } else if (cell >= left + visibleCells()) {
    left = cell - visibleCells() + 8;
  }
  scrollTo(top, left);
}

void TextWindow::showLine(int line) {
  line = std::clamp(line, 0, document_.lineCount() - 1);
  if (line < top_ || line >= top_ + visibleLines()) {
    scrollTo(line - visibleLines() / 2, left_);
  }
}

void TextWindow::scrollTo(int top, int left) {
  top = std::clamp(top, 0, std::max(0, document_.lineCount() - 1));
  left = std::clamp(left, 0, std::max(left_, widest_ + visibleCells()));
  const int rows = top - top_;
  const int cells = left - left_;
  top_ = top;
  left_ = left;
  updateScrollBars();
  if (paints() && (rows != 0 || cells != 0)) {
    moveView(rows, cells);
    placeCaret();
  }
}

void TextWindow::updateScrollBars() {
  if (!paints()) {
    return;
  }
  setScrollBar(SB_VERT, document_.lineCount() - 1, visibleLines(), top_);
  setScrollBar(SB_HORZ, std::max(widest_, left_ + visibleCells() - 1), visibleCells(), left_);
}

// The system draws a bar whenever it is told of it.
void TextWindow::setScrollBar(int bar, int last, int page, int position) {
  const SCROLLINFO info = {sizeof info,
                           SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL,
                           0,
                           last,
                           static_cast<UINT>(page),
                           position,
                           0};
  SCROLLINFO& set = bars_[bar];
  if (set.cbSize == 0 || set.nMax != info.nMax || set.nPage != info.nPage ||
      set.nPos != info.nPos) {
    set = info;
    SetScrollInfo(window_, bar, &info, TRUE);
  }
}

void TextWindow::scroll(int bar, WPARAM w) {
  SCROLLINFO info = {sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(window_, bar, &info);
  int position = info.nPos;
  const int page = std::max(1, static_cast<int>(info.nPage) - 1);
  switch (LOWORD(w)) {
    case SB_LINEUP:
      position -= bar == SB_VERT ? 1 : 4;
      break;
    case SB_LINEDOWN:
      position += bar == SB_VERT ? 1 : 4;
      break;
    case SB_PAGEUP:
      position -= page;
      break;
    case SB_PAGEDOWN:
      position += page;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      position = info.nTrackPos;
      break;
    case SB_TOP:
      position = 0;
      break;
    case SB_BOTTOM:
      position = info.nMax;
      break;
    default:
      return;
  }
  position = std::clamp(position, 0, std::max(0, info.nMax - page));
  scrollTo(bar == SB_VERT ? position : top_, bar == SB_HORZ ? position : left_);
}

void TextWindow::wheel(int delta) {
  wheel_rest_ += delta;
  const int notches = wheel_rest_ / WHEEL_DELTA;
  wheel_rest_ -= notches * WHEEL_DELTA;
  if (notches != 0) {
    const int last = std::max(0, document_.lineCount() - visibleLines());
    scrollTo(std::clamp(top_ - notches * 3, 0, std::max(last, top_)), left_);
  }
}

}  // namespace workbench
