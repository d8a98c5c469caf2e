// What of the window does not show the text as it is, and is painted anew. Rows that
// only stand elsewhere are moved.
#include <algorithm>

#include "workbench/editor/text_window.h"

namespace workbench {

void TextWindow::repaint() {
  if (paints()) {
    InvalidateRect(window_, nullptr, FALSE);
  }
}

void TextWindow::repaintLines(int first, int last) {
  RECT area = {};
  GetClientRect(window_, &area);
  const int rows = static_cast<int>(area.bottom) / line_height_ + 1;
  first = std::max(first - top_, 0);
  last = std::min(last - top_, rows);
  if (first <= last) {
    area.top = first * line_height_;
    area.bottom = (last + 1) * line_height_;
    InvalidateRect(window_, &area, FALSE);
  }
}

void TextWindow::repaintSelection() {
  const Place from = std::min(anchor_, caret_);
  const Place to = std::max(anchor_, caret_);
  if (!paints() || (from == shown_from_ && to == shown_to_)) {
    return;
  }
  const bool was_empty = shown_from_ == shown_to_;
  if (from == to || was_empty) {
    if (from < to) {
      repaintLines(from.line, to.line);
    } else if (!was_empty) {
      repaintLines(shown_from_.line, shown_to_.line);
    }
  } else {
    if (!(from == shown_from_)) {
      repaintLines(std::min(from, shown_from_).line, std::max(from, shown_from_).line);
    }
    if (!(to == shown_to_)) {
      repaintLines(std::min(to, shown_to_).line, std::max(to, shown_to_).line);
    }
  }
  shown_from_ = from;
  shown_to_ = to;
}

void TextWindow::repaintChange(const DocumentChange& change) {
  const int lines = document_.lineCount();
  const int grown = change.new_end.line - change.old_end.line;
  if (marginWidth(lines - grown) != marginWidth(lines)) {
    repaint();
    return;
  }
  int last = change.new_end.line;
  if (settings_.colours) {
    const int shown = std::min(top_ + visibleLines(), lines - 1);
    last = std::max(last, highlighter_.makeSure(document_, shown) - 1);
  }
  if (grown != 0) {
    moveRows(change.old_end.line + 1, grown);
    // Their numbers come or go; those of the other rows stay where they are.
    repaintLines(std::min(lines, lines - grown), std::max(lines, lines - grown));
  }
  repaintLines(change.from.line, last);
}

// The text of the lines that stood at this row and below goes down, or up.
void TextWindow::moveRows(int first, int rows) {
  RECT area = {};
  GetClientRect(window_, &area);
  const int at = std::max(0, std::min(first, first + rows) - top_);
  area.left = marginWidth();
  if (at < area.bottom / line_height_ + 1) {
    area.top = at * line_height_;
    ScrollWindowEx(window_, 0, rows * line_height_, &area, &area, nullptr, nullptr, SW_INVALIDATE);
  }
}

// The window shows what is so many rows below and cells to the right.
void TextWindow::moveView(int rows, int cells) {
  RECT area = {};
  GetClientRect(window_, &area);
  if (rows != 0 && cells != 0) {
    repaint();
    return;
  }
  area.left = rows != 0 ? 0 : marginWidth();
  ScrollWindowEx(window_, -cells * cell_width_, -rows * line_height_, &area, &area, nullptr,
                 nullptr, SW_INVALIDATE);
}

}  // namespace workbench
