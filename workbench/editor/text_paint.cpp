#include <algorithm>
#include <cstdio>

#include "workbench/editor/text_layout.h"
#include "workbench/editor/text_window.h"

namespace workbench {
namespace {

constexpr COLORREF kMarginColour = RGB(128, 128, 128);

COLORREF colourOf(TextKind kind) {
  switch (kind) {
    case TextKind::kComment:
      return RGB(0, 112, 0);
    case TextKind::kText:
      return RGB(160, 32, 32);
    case TextKind::kNumber:
      return RGB(144, 64, 0);
    case TextKind::kKeyword:
      return RGB(0, 0, 160);
    case TextKind::kPreprocessor:
      return RGB(96, 0, 128);
    case TextKind::kPlain:
      break;
  }
  return GetSysColor(COLOR_WINDOWTEXT);
}

// Control characters have no picture of their own.
unsigned shown(unsigned code) {
  return code < 32 || code == 127 ? 0xB7U : code;
}

// Paints the cells of a row from left to right, those of one look in one call, and
// leaves no pixel of the row out.
class RowPainter {
 public:
  // Cell 0 begins `margin` pixels into the row.
  RowPainter(HDC dc, const RECT& row, int margin, int cell_width)
      : dc_(dc), row_(row), margin_(margin), cell_width_(cell_width) {}
  ~RowPainter() {
    if (paper_ != window_paper_) {
      flush(edgeOf(end_));
      paper_ = window_paper_;
    }
    flush(row_.right);
  }
  RowPainter(const RowPainter&) = delete;
  RowPainter& operator=(const RowPainter&) = delete;

  void put(int cell, unsigned code, COLORREF ink, COLORREF paper) {
    // A blank has no ink.
    const bool inks = code != ' ';
    if (count_ + 2 > kMost || paper != paper_ || (inks && inked_ && ink != ink_)) {
      flush(edgeOf(cell));
      paper_ = paper;
    }
    if (inks) {
      ink_ = ink;
      inked_ = true;
    }
    if (code >= 0x10000) {
      add(0xD7C0 + (code >> 10), 0);
      code = 0xDC00 + (code & 0x3FF);
    }
    add(code, cell_width_);
    ++cells_;
    end_ = cell + 1;
  }

 private:
  static constexpr int kMost = 256;

  void add(unsigned unit, int step) {
    text_[count_] = static_cast<wchar_t>(unit);
    steps_[count_] = step;
    ++count_;
  }

  LONG edgeOf(int cell) const { return row_.left + margin_ + cell * cell_width_; }

  void flush(LONG right) {
    const RECT box = {done_, row_.top, right, row_.bottom};
    if (box.left < box.right) {
      SetTextColor(dc_, ink_);
      SetBkColor(dc_, paper_);
      ExtTextOutW(dc_, edgeOf(end_ - cells_), box.top, ETO_OPAQUE | ETO_CLIPPED, &box, text_,
                  static_cast<UINT>(count_), steps_);
      done_ = right;
    }
    count_ = cells_ = 0;
    inked_ = false;
  }

  HDC dc_;
  RECT row_;
  int margin_;
  int cell_width_;
  COLORREF window_paper_ = GetSysColor(COLOR_WINDOW);
  COLORREF ink_ = 0;
  bool inked_ = false;  // of those collected one has ink
  COLORREF paper_ = window_paper_;
  LONG done_ = row_.left;
  int count_ = 0;  // units of text
  int cells_ = 0;
  int end_ = 0;  // the cell after those collected
  wchar_t text_[kMost];
  INT steps_[kMost];
};

}  // namespace

int TextWindow::marginWidth(int lines) const {
  if (!settings_.line_numbers) {
    return 4;
  }
  int digits = 3;
  for (int n = lines; n >= 1000; n /= 10) {
    ++digits;
  }
  return (digits + 2) * cell_width_;
}

void TextWindow::paint() {
  repaintSelection();
  PAINTSTRUCT info = {};
  HDC dc = BeginPaint(window_, &info);
  RECT area = {};
  GetClientRect(window_, &area);
  const HGDIOBJ old_font = SelectObject(dc, font_.get());
  const int first = static_cast<int>(info.rcPaint.top) / line_height_;
  for (int row = first; row * line_height_ < info.rcPaint.bottom; ++row) {
    const RECT box = {0, row * line_height_, area.right, (row + 1) * line_height_};
    // What is to be painted may have gaps.
    if (RectVisible(dc, &box) != 0) {
      paintLine(dc, top_ + row, box);
    }
  }
  SelectObject(dc, old_font);
  EndPaint(window_, &info);
}

void TextWindow::paintLine(HDC dc, int line, const RECT& row) {
  RECT text = row;
  if (settings_.line_numbers) {
    text.left = marginWidth() - cell_width_ / 2;
    paintMargin(dc, line, {row.left, row.top, text.left, row.bottom});
  }
  paintText(dc, line, text);
  if (line == marked_) {
    tintMarked(dc, row);
  }
}

void TextWindow::paintMargin(HDC dc, int line, const RECT& margin) const {
  char number[16];
  int length = 0;
  if (line < document_.lineCount()) {
    length = std::snprintf(number, sizeof number, "%d", line + 1);
  }
  SetTextColor(dc, kMarginColour);
  SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
  ExtTextOutA(dc, margin.right - cell_width_ / 2 - length * cell_width_, margin.top,
              ETO_OPAQUE | ETO_CLIPPED, &margin, number, static_cast<UINT>(length), nullptr);
}

void TextWindow::paintText(HDC dc, int line, const RECT& row) {
  const int margin = marginWidth() - static_cast<int>(row.left);
  RowPainter painter(dc, row, margin, cell_width_);
  if (line >= document_.lineCount()) {
    return;
  }
  const std::string& text = document_.line(line);
  const int length = static_cast<int>(text.size());
  const Place first = std::min(anchor_, caret_);
  const Place last = std::max(anchor_, caret_);
  std::vector<TextRun> runs;
  if (settings_.colours) {
    runs = highlighter_.runs(document_, line);
  }
  const int end_cell = left_ + (static_cast<int>(row.right) - marginWidth()) / cell_width_ + 1;
  const COLORREF paper = GetSysColor(COLOR_WINDOW);
  const COLORREF selected_paper = GetSysColor(COLOR_HIGHLIGHT);
  const COLORREF selected_ink = GetSysColor(COLOR_HIGHLIGHTTEXT);
  std::size_t run = 0;
  int cell = 0;
  // One byte more than the line: a selected line end shows as a selected blank.
  for (int i = 0, size = 1; i <= length && cell < end_cell; i += size) {
    const bool at_end = i == length;
    const unsigned c = at_end ? ' ' : characterAt(text, i, document_.encoding(), &size);
    const int next =
        !at_end && c == '\t' ? (cell / settings_.tab_width + 1) * settings_.tab_width : cell + 1;
    const Place here = {line, i};
    const bool selected = !(here < first) && here < last && (!at_end || line < last.line);
    if (next > left_ && (!at_end || selected)) {
      while (run < runs.size() && runs[run].to <= i) {
        ++run;
      }
      const TextKind kind = run < runs.size() ? runs[run].kind : TextKind::kPlain;
      const COLORREF ink = selected ? selected_ink : colourOf(kind);
      for (int at = std::max(cell, left_); at < next && at < end_cell; ++at) {
        painter.put(at - left_, c == '\t' ? ' ' : shown(c), ink, selected ? selected_paper : paper);
      }
    }
    cell = next;
  }
}

}  // namespace workbench
