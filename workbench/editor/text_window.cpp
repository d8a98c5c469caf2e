#include "workbench/editor/text_window.h"

#include <algorithm>

#include "ideapi/ide_identifiers.h"
#include "workbench/editor/text_layout.h"
#include "workbench/events/ansi.h"
#include "workbench/windows/window_class.h"

namespace workbench {

bool TextWindow::registerClass(HINSTANCE instance) {
  WNDCLASSA info = windowClass(ideapi::kEditorTextClass, windowProc, instance, kNoBackground);
  info.style = CS_DBLCLKS;
  info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_IBEAM));
  // Where the system can, so that every character that is typed arrives.
  const std::wstring name = toWide(ideapi::kEditorTextClass, Encoding::kAnsi);
  const WNDCLASSW wide = {info.style,     info.lpfnWndProc, info.cbClsExtra, info.cbWndExtra,
                          info.hInstance, info.hIcon,       info.hCursor,    info.hbrBackground,
                          nullptr,        name.c_str()};
  return RegisterClassW(&wide) != 0 || RegisterClassA(&info) != 0;
}

TextWindow::TextWindow(Document& document, const EditorSettings& settings, TextWindowOwner& owner)
    : document_(document), settings_(settings), owner_(owner) {
  document_.addListener(this);
  trackWidth(0, document_.lineCount() - 1);
}

TextWindow::~TextWindow() {
  document_.removeListener(this);
}

HWND TextWindow::create(HWND parent, HINSTANCE instance) {
  makeFont();
  return CreateWindowExA(0, ideapi::kEditorTextClass, "",
                         WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, 0, 0, 10, 10, parent,
                         nullptr, instance, this);
}

namespace {

LRESULT defaultProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  return IsWindowUnicode(window) != 0 ? DefWindowProcW(window, message, w, l)
                                      : DefWindowProcA(window, message, w, l);
}

}  // namespace

LRESULT CALLBACK TextWindow::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<TextWindow*>(GetWindowLongA(window, 0));
  if (message == WM_NCCREATE) {
    self = static_cast<TextWindow*>(reinterpret_cast<CREATESTRUCTA*>(l)->lpCreateParams);
    self->window_ = window;
    SetWindowLongA(window, 0, reinterpret_cast<LONG>(self));
  }
  if (self == nullptr) {
    return defaultProc(window, message, w, l);
  }
  if (message == WM_NCDESTROY) {
    SetWindowLongA(window, 0, 0);
    self->window_ = nullptr;
    return defaultProc(window, message, w, l);
  }
  return self->handle(message, w, l);
}

LRESULT TextWindow::handle(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
      updateScrollBars();
      placeCaret();
      return 0;
    case WM_VSCROLL:
      scroll(SB_VERT, w);
      return 0;
    case WM_HSCROLL:
      scroll(SB_HORZ, w);
      return 0;
    case WM_MOUSEWHEEL:
      wheel(static_cast<short>(HIWORD(w)));
      return 0;
    case WM_SETFOCUS:
      focused_ = true;
      makeCaret();
      owner_.textFocused();
      return 0;
    case WM_KILLFOCUS:
      focused_ = false;
      DestroyCaret();
      document_.breakRun();
      return 0;
    case WM_GETDLGCODE:
      return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_CHAR:
      character(IsWindowUnicode(window_) != 0
                    ? static_cast<wchar_t>(w)
                    : static_cast<wchar_t>(codeFromAnsi(static_cast<char>(w))));
      return 0;
    case WM_KEYDOWN:
      return keyDown(w) ? 0 : defaultProc(window_, message, w, l);
    case WM_SYSKEYDOWN:
      if (w == VK_BACK) {
        undo();
        return 0;
      }
      return defaultProc(window_, message, w, l);
    case WM_SYSCHAR:
      // Alt+Backspace was undo; it is no menu's key.
      return w == VK_BACK ? 0 : defaultProc(window_, message, w, l);
    case WM_COPY:
      copy();
      return 0;
    case WM_CUT:
      cut();
      return 0;
    case WM_PASTE:
      paste();
      return 0;
    case WM_CLEAR:
      clear();
      return 0;
    case WM_UNDO:
      undo();
      return 0;
    default:
      return handleMouse(message, w, l);
  }
}

LRESULT TextWindow::handleMouse(UINT message, WPARAM w, LPARAM l) {
  const int x = static_cast<short>(LOWORD(l));
  const int y = static_cast<short>(HIWORD(l));
  switch (message) {
    case WM_LBUTTONDOWN:
      SetFocus(window_);
      document_.breakRun();
      setCaret(placeAt(x, y), (w & MK_SHIFT) != 0);
      dragging_ = true;
      SetCapture(window_);
      return 0;
    case WM_MOUSEMOVE:
      if (dragging_) {
        setCaret(placeAt(x, y), true);
      }
      return 0;
    case WM_LBUTTONUP:
      if (dragging_) {
        dragging_ = false;
        ReleaseCapture();
      }
      return 0;
    case WM_CAPTURECHANGED:
      dragging_ = false;
      return 0;
    case WM_LBUTTONDBLCLK: {
      const Place place = placeAt(x, y);
      int from = 0;
      int to = 0;
      wordAround(document_.line(place.line), place.column, &from, &to, document_.encoding());
      select({place.line, from}, {place.line, to});
      return 0;
    }
    default:
      return defaultProc(window_, message, w, l);
  }
}

// Columns of the text area count from the margin; above and below reach beyond
// the shown lines so that dragging scrolls.
Place TextWindow::placeAt(int x, int y) const {
  int row = y / line_height_;
  if (y < 0) {
    row = -1;
  }
  const int line = std::clamp(top_ + row, 0, document_.lineCount() - 1);
  const int cell = left_ + (x - marginWidth()) / cell_width_;
  // Rounding to the nearer side of a character is what hands expect.
  const bool right_half = x > marginWidth() && (x - marginWidth()) % cell_width_ > cell_width_ / 2;
  return {line, columnOfCell(document_.line(line), std::max(0, cell + (right_half ? 1 : 0)),
                             settings_.tab_width, document_.encoding())};
}

void TextWindow::setCaret(Place place, bool extend) {
  place.line = std::clamp(place.line, 0, document_.lineCount() - 1);
  place.column = std::max(0, place.column);
  caret_ = wholeCharacter(place);
  if (!extend) {
    anchor_ = caret_;
  }
  wanted_cell_ = -1;
  afterMove();
}

void TextWindow::select(Place from, Place to) {
  anchor_ = wholeCharacter(document_.clamp(from));
  setCaret(document_.clamp(to), true);
}

Place TextWindow::wholeCharacter(Place place) const {
  return {place.line,
          startOfCharacter(document_.line(place.line), place.column, document_.encoding())};
}

std::string TextWindow::selection() const {
  return document_.textBetween(anchor_, caret_);
}

void TextWindow::afterMove() {
  if (caret_.line != marked_) {
    unmark();
  }
  revealCaret();
  repaintSelection();
  placeCaret();
  owner_.textCaretMoved();
}

void TextWindow::makeCaret() {
  CreateCaret(window_, nullptr, insert_mode_ ? 2 : cell_width_, line_height_);
  placeCaret();
  ShowCaret(window_);
}

void TextWindow::placeCaret() {
  if (!focused_) {
    return;
  }
  const int cell = cellOfColumn(document_.line(caret_.line), caret_.column, settings_.tab_width,
                                document_.encoding());
  // A caret left of the text area would stand in the margin.
  const int x = cell < left_ ? -100 : marginWidth() + (cell - left_) * cell_width_;
  SetCaretPos(x, (caret_.line - top_) * line_height_);
}

void TextWindow::makeFont() {
  HDC screen = GetDC(nullptr);
  const int height = -MulDiv(settings_.font_points, GetDeviceCaps(screen, LOGPIXELSY), 72);
  font_.reset(CreateFontA(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET,
                          OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                          FIXED_PITCH | FF_MODERN, "Courier New"));
  const HGDIOBJ old = SelectObject(screen, font_.get());
  TEXTMETRICA metrics = {};
  GetTextMetricsA(screen, &metrics);
  SelectObject(screen, old);
  ReleaseDC(nullptr, screen);
  cell_width_ = std::max(1, static_cast<int>(metrics.tmAveCharWidth));
  line_height_ = std::max(1, static_cast<int>(metrics.tmHeight + metrics.tmExternalLeading));
}

void TextWindow::settingsChanged() {
  makeFont();
  widest_ = 0;
  trackWidth(0, document_.lineCount() - 1);
  updateScrollBars();
  repaint();
  if (focused_) {
    makeCaret();
  }
  afterMove();
}

void TextWindow::holdPainting(bool hold) {
  painting_held_ += hold ? 1 : -1;
  if (painting_held_ == 0) {
    updateScrollBars();
    repaint();
    afterMove();
  }
}

void TextWindow::trackWidth(int first, int last) {
  for (int i = first; i <= last; ++i) {
    widest_ = std::max(widest_,
                       cellsOfLine(document_.line(i), settings_.tab_width, document_.encoding()));
  }
}

namespace {

// Where a place before the change stands after it.
Place moved(Place place, const DocumentChange& change) {
  if (place < change.from) {
    return place;
  }
  if (place < change.old_end) {
    return change.from;
  }
  if (place.line == change.old_end.line) {
    return {change.new_end.line, place.column - change.old_end.column + change.new_end.column};
  }
  return {place.line + change.new_end.line - change.old_end.line, place.column};
}

}  // namespace

void TextWindow::documentChanged(const DocumentChange& change) {
  unmark();
  highlighter_.documentChanged(change);
  trackWidth(change.from.line, change.new_end.line);
  caret_ = wholeCharacter(document_.clamp(moved(caret_, change)));
  anchor_ = wholeCharacter(document_.clamp(moved(anchor_, change)));
  shown_from_ = moved(shown_from_, change);
  shown_to_ = moved(shown_to_, change);
  wanted_cell_ = -1;
  if (top_ >= document_.lineCount()) {
    top_ = document_.lineCount() - 1;
    repaint();
  }
  if (paints()) {
    repaintChange(change);
    updateScrollBars();
    placeCaret();
  }
}

}  // namespace workbench
