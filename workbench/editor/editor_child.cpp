#include "workbench/editor/editor_child.h"

#include <algorithm>
#include <utility>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/window_class.h"

namespace workbench {

bool EditorChild::registerClass(HINSTANCE instance) {
  return registerChildClass(ideapi::kEditorClass, instance, kNoBackground);
}

EditorChild::EditorChild(std::shared_ptr<OpenFile> file, const EditorSettings& settings,
                         EditorChildHost& host)
    : file_(std::move(file)), host_(host), text_(file_->document, settings, *this) {
  file_->document.addListener(this);
}

EditorChild::~EditorChild() {
  file_->document.removeListener(this);
}

bool EditorChild::create(HWND mdi_client, HINSTANCE instance, const Area& place) {
  shown_title_ = title();
  return createChild(mdi_client, instance, ideapi::kEditorClass, shown_title_.c_str(), place.left,
                     place.top, place.width(), place.height());
}

LRESULT EditorChild::handleMessage(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_CREATE:
      return text_.create(window(), instance()) != nullptr ? 0 : -1;
    case WM_SIZE:
      if (w != SIZE_MINIMIZED) {
        MoveWindow(text_.window(), 0, 0, LOWORD(l), HIWORD(l), TRUE);
      }
      break;
    case WM_SETFOCUS:
      SetFocus(text_.window());
      return 0;
    case WM_MDIACTIVATE:
      if (reinterpret_cast<HWND>(l) == window()) {
        host_.childActivated(*this);
      }
      break;
    case WM_CLOSE: {
      const HWND closing = window();
      // The whole program may have closed by the answer, and this editor with it.
      if (!host_.mayClose(*this) || IsWindow(closing) == 0) {
        return 0;
      }
      break;
    }
    default:
      break;
  }
  return DefMDIChildProcA(window(), message, w, l);
}

std::string EditorChild::title() const {
  std::string result = file_->path;
  if (number_ > 0) {
    result += ':';
    result += std::to_string(number_);
  }
  if (file_->document.modified()) {
    result += " *";
  }
  return result;
}

void EditorChild::setViewNumber(int number) {
  number_ = number;
  updateTitle();
}

void EditorChild::updateTitle() {
  const std::string wanted = title();
  if (window() == nullptr || wanted == shown_title_) {
    return;
  }
  shown_title_ = wanted;
  SetWindowTextA(window(), wanted.c_str());
  // The system may draw the new caption without a word. Add-ons that draw into it wait
  // for this message.
  SendMessageA(window(), WM_NCPAINT, 1, 0);
}

std::string EditorChild::text() {
  const Document& document = file_->document;
  return toAnsi(document.textBetween({0, 0}, document.endPlace()), document.encoding());
}

Place EditorChild::placeOf(int line, int column) const {
  const Document& document = file_->document;
  const int inside = std::clamp(line - 1, 0, document.lineCount() - 1);
  return {line - 1,
          columnOfCharacter(document.line(inside), std::max(0, column - 1), document.encoding())};
}

void EditorChild::caret(int* line, int* column) {
  const Place place = text_.caret();
  const Document& document = file_->document;
  *line = place.line + 1;
  *column = charactersBefore(document.line(place.line), place.column, document.encoding()) + 1;
}

void EditorChild::setCaret(int line, int column) {
  text_.setCaret(placeOf(line, column));
}

void EditorChild::showHit(int line, int column) {
  setCaret(line, column);
  text_.showHit();
}

TextView EditorChild::view() {
  return {text_.topLine() + 1, text_.shownLines(), text_.markedLine() + 1};
}

void EditorChild::select(int line1, int column1, int line2, int column2) {
  text_.select(placeOf(line1, column1), placeOf(line2, column2));
}

void EditorChild::type(const std::string& text) {
  text_.type(fromAnsi(text, file_->document.encoding()));
}

void EditorChild::textCaretMoved() {
  host_.childChanged(*this);
}

void EditorChild::textFocused() {
  host_.childChanged(*this);
}

void EditorChild::documentStateChanged() {
  updateTitle();
  host_.childChanged(*this);
}

}  // namespace workbench
