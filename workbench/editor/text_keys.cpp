#include <algorithm>
#include <utility>

#include "workbench/editor/text_layout.h"
#include "workbench/editor/text_window.h"
#include "workbench/windows/clipboard.h"

namespace workbench {
namespace {

bool isDown(int key) {
  return GetKeyState(key) < 0;
}

}  // namespace

bool TextWindow::keyDown(WPARAM key) {
  const bool shift = isDown(VK_SHIFT);
  const bool control = isDown(VK_CONTROL);
  if (motionKey(key, shift, control)) {
    document_.breakRun();
    return true;
  }
  switch (key) {
    case VK_BACK:
      eraseBack(control);
      return true;
    case VK_DELETE:
      if (shift) {
        cut();
      } else {
        eraseForward(control);
      }
      return true;
    case VK_INSERT:
      if (shift) {
        paste();
      } else if (control) {
        copy();
      } else {
        insert_mode_ = !insert_mode_;
        makeCaret();
        afterMove();
      }
      return true;
    default:
      return control && controlKey(key, shift);
  }
}

bool TextWindow::controlKey(WPARAM key, bool shift) {
  switch (key) {
    case 'Z':
      if (shift) {
        redo();
      } else {
        undo();
      }
      return true;
    case 'Y':
      redo();
      return true;
    case 'C':
      copy();
      return true;
    case 'X':
      cut();
      return true;
    case 'V':
      paste();
      return true;
    case 'A':
      selectAll();
      return true;
    default:
      return false;
  }
}

bool TextWindow::motionKey(WPARAM key, bool shift, bool control) {
  switch (key) {
    case VK_LEFT:
      setCaret(leftOf(caret_, control), shift);
      return true;
    case VK_RIGHT:
      setCaret(rightOf(caret_, control), shift);
      return true;
    case VK_UP:
      if (control) {
        scrollTo(top_ - 1, left_);
      } else {
        moveVertically(-1, shift);
      }
      return true;
    case VK_DOWN:
      if (control) {
        scrollTo(top_ + 1, left_);
      } else {
        moveVertically(1, shift);
      }
      return true;
    case VK_PRIOR:
      moveVertically(-std::max(1, visibleLines() - 1), shift);
      return true;
    case VK_NEXT:
      moveVertically(std::max(1, visibleLines() - 1), shift);
      return true;
    case VK_HOME: {
      const int indent = static_cast<int>(indentOf(document_.line(caret_.line)).size());
      const int column = caret_.column == indent ? 0 : indent;
      setCaret(control ? Place{0, 0} : Place{caret_.line, column}, shift);
      return true;
    }
    case VK_END:
      setCaret(control ? document_.endPlace()
                       : Place{caret_.line, static_cast<int>(document_.line(caret_.line).size())},
               shift);
      return true;
    default:
      return false;
  }
}

void TextWindow::moveVertically(int lines, bool extend) {
  const int cell = wanted_cell_ >= 0 ? wanted_cell_
                                     : cellOfColumn(document_.line(caret_.line), caret_.column,
                                                    settings_.tab_width, document_.encoding());
  const int line = std::clamp(caret_.line + lines, 0, document_.lineCount() - 1);
  if (lines != 1 && lines != -1) {
    scrollTo(top_ + lines, left_);
  }
  setCaret(
      {line, columnOfCell(document_.line(line), cell, settings_.tab_width, document_.encoding())},
      extend);
  wanted_cell_ = cell;
}

Place TextWindow::leftOf(Place place, bool word) const {
  const int length = static_cast<int>(document_.line(place.line).size());
  if (place.column > length) {
    return {place.line, word ? length : place.column - 1};
  }
  if (place.column > 0) {
    return {place.line,
            word ? previousWord(document_.line(place.line), place.column, document_.encoding())
                 : previousColumn(document_.line(place.line), place.column, document_.encoding())};
  }
  if (place.line == 0) {
    return place;
  }
  return {place.line - 1, static_cast<int>(document_.line(place.line - 1).size())};
}

Place TextWindow::rightOf(Place place, bool word) const {
  if (place.column < static_cast<int>(document_.line(place.line).size())) {
    return {place.line,
            word ? nextWord(document_.line(place.line), place.column, document_.encoding())
                 : nextColumn(document_.line(place.line), place.column, document_.encoding())};
  }
  return place.line + 1 < document_.lineCount() ? Place{place.line + 1, 0} : place;
}

bool TextWindow::encode(const std::wstring& wide, std::string* text) {
  return fromWide(wide, document_.encoding(), text) ||
         (document_.becomeUtf8() && fromWide(wide, document_.encoding(), text));
}

void TextWindow::character(wchar_t unit) {
  switch (unit) {
    case '\r':
    case '\n':
      breakLine();
      return;
    case '\t':
      tabKey(isDown(VK_SHIFT));
      return;
    default:
      // Ctrl with a letter arrives as a control character and is a command.
      if (unit < 32 || unit == 127) {
        return;
      }
  }
  const wchar_t first = std::exchange(first_half_, L'\0');
  if (unit >= 0xD800 && unit < 0xDC00) {
    first_half_ = unit;
    return;
  }
  std::string text;
  if (!encode(first != 0 ? std::wstring{first, unit} : std::wstring{unit}, &text)) {
    MessageBeep(MB_ICONWARNING);
    return;
  }
  if (!insert_mode_ && !hasSelection() &&
      caret_.column < static_cast<int>(document_.line(caret_.line).size())) {
    if (!owner_.allowEdit()) {
      return;
    }
    anchor_ = {caret_.line,
               nextColumn(document_.line(caret_.line), caret_.column, document_.encoding())};
  }
  type(text);
}

void TextWindow::breakLine() {
  const Place start = std::min(anchor_, caret_);
  const std::string indent(
      indentOf(document_.line(start.line)).substr(0, static_cast<std::size_t>(start.column)));
  type("\n" + indent, Document::Edit::kSingle);
}

void TextWindow::tabKey(bool shift) {
  const Place first = std::min(anchor_, caret_);
  const Place last = std::max(anchor_, caret_);
  if (!shift && first.line == last.line) {
    type("\t");
    return;
  }
  if (!owner_.allowEdit()) {
    return;
  }
  // Whole lines are moved right or left together.
  const int end_line = last.column == 0 && last.line > first.line ? last.line - 1 : last.line;
  document_.beginTransaction();
  for (int line = first.line; line <= end_line; ++line) {
    const std::string& text = document_.line(line);
    if (!shift) {
      if (!text.empty()) {
        document_.insert({line, 0}, "\t");
      }
      continue;
    }
    int blanks = !text.empty() && text[0] == '\t' ? 1 : 0;
    while (blanks < settings_.tab_width && blanks < static_cast<int>(text.size()) &&
           text[static_cast<std::size_t>(blanks)] == ' ' && text[0] == ' ') {
      ++blanks;
    }
    document_.erase({line, 0}, {line, blanks});
  }
  document_.endTransaction();
  afterMove();
}

void TextWindow::type(std::string_view text, Document::Edit kind) {
  if (!owner_.allowEdit()) {
    return;
  }
  const bool grouped = hasSelection();
  if (grouped) {
    document_.beginTransaction();
    eraseSelection();
  }
  const int gap = caret_.column - static_cast<int>(document_.line(caret_.line).size());
  std::string padded(gap > 0 ? static_cast<std::size_t>(gap) : 0, ' ');
  padded += text;
  const Place end = document_.insert(caret_, padded, kind);
  if (grouped) {
    document_.endTransaction();
  }
  setCaret(end);
}

void TextWindow::insertBefore(std::string_view text) {
  if (!owner_.allowEdit()) {
    return;
  }
  const Place keep = caret_;
  const int gap = caret_.column - static_cast<int>(document_.line(caret_.line).size());
  std::string padded(gap > 0 ? static_cast<std::size_t>(gap) : 0, ' ');
  padded += text;
  document_.insert(caret_, padded);
  setCaret(keep);
}

void TextWindow::eraseSelection() {
  const Place start = document_.clamp(std::min(anchor_, caret_));
  document_.erase(anchor_, caret_);
  caret_ = anchor_ = start;
}

void TextWindow::clear() {
  if (hasSelection() && owner_.allowEdit()) {
    eraseSelection();
    afterMove();
  }
}

void TextWindow::eraseBack(bool word) {
  if (hasSelection()) {
    clear();
    return;
  }
  if (!owner_.allowEdit()) {
    return;
  }
  const Place from = leftOf(caret_, word);
  document_.erase(from, caret_, Document::Edit::kErasing);
  setCaret(from);
}

void TextWindow::eraseForward(bool word) {
  if (hasSelection()) {
    clear();
    return;
  }
  if (!owner_.allowEdit()) {
    return;
  }
  document_.erase(caret_, rightOf(caret_, word), Document::Edit::kErasing);
  afterMove();
}

void TextWindow::undo() {
  Place place;
  if (owner_.allowEdit() && document_.undo(&place)) {
    setCaret(place);
  }
}

void TextWindow::redo() {
  Place place;
  if (owner_.allowEdit() && document_.redo(&place)) {
    setCaret(place);
  }
}

bool TextWindow::putSelection() {
  const std::string text = selection();
  const Encoding encoding = document_.encoding();
  // The system makes the wide text of the other itself.
  return putOnClipboard(window_, toAnsi(text, encoding),
                        encoding == Encoding::kUtf8 ? toWide(text, encoding) : std::wstring());
}

void TextWindow::copy() {
  if (hasSelection()) {
    putSelection();
  }
}

void TextWindow::cut() {
  if (hasSelection() && owner_.allowEdit() && putSelection()) {
    clear();
  }
}

void TextWindow::paste() {
  std::wstring wide;
  std::string text;
  if (!takeWideFromClipboard(window_, &wide) || !encode(wide, &text)) {
    // What the code page has of it.
    takeFromClipboard(window_, &text);
    text = fromAnsi(text, document_.encoding());
  }
  if (!text.empty()) {
    type(text, Document::Edit::kSingle);
  }
}

void TextWindow::selectAll() {
  select({0, 0}, document_.endPlace());
}

bool TextWindow::findText(const TextSearch& search, bool backward) {
  Place found;
  const Place start = backward ? std::min(anchor_, caret_) : std::max(anchor_, caret_);
  const Place far_end = backward ? document_.endPlace() : Place{0, 0};
  if (!document_.find(search, backward, start, &found) &&
      !document_.find(search, backward, far_end, &found)) {
    return false;
  }
  const bool seen = found.line >= top_ && found.line < top_ + visibleLines();
  select(found, {found.line, found.column + static_cast<int>(search.text.size())});
  if (!seen) {
    showHit();
  }
  return true;
}

}  // namespace workbench
