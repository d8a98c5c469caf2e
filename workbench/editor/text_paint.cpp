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

// Collects cells of one look and draws them in one call.
class RunPainter {
 public:
  RunPainter(HDC dc, const RECT& area, int cell_width)
      : dc_(dc), area_(area), cell_width_(cell_width) {}
  ~RunPainter() { flush(); }
  RunPainter(const RunPainter&) = delete;
  RunPainter& operator=(const RunPainter&) = delete;

  void put(int cell, unsigned code, COLORREF ink, COLORREF paper) {
    if (count_ + 2 > kMost || ink != ink_ || paper != paper_ || cell != cell_ + cells_) {
      flush();
      cell_ = cell;
      ink_ = ink;
      paper_ = paper;
    }
    if (code >= 0x10000) {
      add(0xD7C0 + (code >> 10), 0);
      code = 0xDC00 + (code & 0x3FF);
    }
    add(code, cell_width_);
    ++cells_;
  }

 private:
  static constexpr int kMost = 256;

  void add(unsigned unit, int step) {
    text_[count_] = static_cast<wchar_t>(unit);
    steps_[count_] = step;
    ++count_;
  }

  void flush() {
    if (count_ == 0) {
      return;
    }
    RECT box = area_;
    box.left = area_.left + cell_ * cell_width_;
    box.right = box.left + cells_ * cell_width_;
    SetTextColor(dc_, ink_);
    SetBkColor(dc_, paper_);
    ExtTextOutW(dc_, box.left, box.top, ETO_OPAQUE, &box, text_, static_cast<UINT>(count_), steps_);
    count_ = cells_ = 0;
  }

  HDC dc_;
  RECT area_;
  int cell_width_;
  int cell_ = 0;
  int count_ = 0;  // units of text
  int cells_ = 0;
  COLORREF ink_ = 0;
  COLORREF paper_ = 0;
  wchar_t text_[kMost];
  INT steps_[kMost];
};

}  // namespace

int TextWindow::marginWidth() const {
  if (!settings_.line_numbers) {
    return 4;
  }
  int digits = 3;
  for (int n = document_.lineCount(); n >= 1000; n /= 10) {
    ++digits;
  }
  return (digits + 2) * cell_width_;
}

void TextWindow::paint() {
  PAINTSTRUCT paint_info = {};
  HDC screen = BeginPaint(window_, &paint_info);
  RECT area = {};
  GetClientRect(window_, &area);
  const OwnedDc dc(CreateCompatibleDC(screen));
  const OwnedBitmap bitmap(CreateCompatibleBitmap(screen, std::max(1L, area.right), line_height_));
  if (dc && bitmap) {
    const HGDIOBJ old_bitmap = SelectObject(dc.get(), bitmap.get());
    const HGDIOBJ old_font = SelectObject(dc.get(), font_.get());
    const RECT row = {0, 0, area.right, line_height_};
    int line = top_ + static_cast<int>(paint_info.rcPaint.top) / line_height_;
    for (int y = (line - top_) * line_height_; y < paint_info.rcPaint.bottom; y += line_height_) {
      paintLine(dc.get(), line++, row);
      BitBlt(screen, 0, y, area.right, line_height_, dc.get(), 0, 0, SRCCOPY);
    }
    SelectObject(dc.get(), old_font);
    SelectObject(dc.get(), old_bitmap);
  }
  EndPaint(window_, &paint_info);
}

void TextWindow::paintLine(HDC dc, int line, const RECT& area) {
  FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
  if (line < document_.lineCount()) {
    paintText(dc, line, area);
  }
  paintMargin(dc, line, area);
}

void TextWindow::paintMargin(HDC dc, int line, const RECT& area) {
  RECT margin = area;
  margin.right = marginWidth();
  if (!settings_.line_numbers) {
    FillRect(dc, &margin, GetSysColorBrush(COLOR_WINDOW));
    return;
  }
  margin.right -= cell_width_ / 2;
  FillRect(dc, &margin, GetSysColorBrush(COLOR_BTNFACE));
  if (line < document_.lineCount()) {
    char number[16];
    std::snprintf(number, sizeof number, "%d", line + 1);
    margin.right -= cell_width_ / 2;
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, kMarginColour);
    DrawTextA(dc, number, -1, &margin, DT_RIGHT | DT_SINGLELINE | DT_NOPREFIX);
  }
}

void TextWindow::paintText(HDC dc, int line, const RECT& area) {
  const std::string& text = document_.line(line);
  const int length = static_cast<int>(text.size());
  const Place first = std::min(anchor_, caret_);
  const Place last = std::max(anchor_, caret_);
  std::vector<TextRun> runs;
  if (settings_.colours) {
    runs = highlighter_.runs(document_, line);
  }
  RECT box = area;
  box.left = marginWidth();
  RunPainter painter(dc, box, cell_width_);
  const int end_cell = left_ + (box.right - box.left) / cell_width_ + 1;
  const COLORREF paper = GetSysColor(COLOR_WINDOW);
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
      const COLORREF ink = selected ? GetSysColor(COLOR_HIGHLIGHTTEXT) : colourOf(kind);
      for (int at = std::max(cell, left_); at < next && at < end_cell; ++at) {
        painter.put(at - left_, c == '\t' ? ' ' : shown(c), ink,
                    selected ? GetSysColor(COLOR_HIGHLIGHT) : paper);
      }
    }
    cell = next;
  }
}

}  // namespace workbench
