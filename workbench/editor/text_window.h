// The text of an editor on screen: the "EditWindClass" window with its caret,
// selection, scroll bars and keys. It shows a document that several may share;
// document, settings and owner must outlive it. The object goes with its window.
// User-interface thread only. Places are 0-based.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "workbench/editor/document.h"
#include "workbench/editor/editor_settings.h"
#include "workbench/editor/highlight.h"
#include "workbench/windows/handles.h"

namespace workbench {

class TextWindowOwner {
 public:
  // The caret, the selection or the insert mode changed.
  virtual void textCaretMoved() = 0;
  virtual void textFocused() = 0;
  // False when the text may not be edited; the owner has said why.
  virtual bool allowEdit() = 0;

 protected:
  ~TextWindowOwner() = default;
};

class TextWindow final : public DocumentListener {
 public:
  static bool registerClass(HINSTANCE instance);

  TextWindow(Document& document, const EditorSettings& settings, TextWindowOwner& owner);
  ~TextWindow();
  TextWindow(const TextWindow&) = delete;
  TextWindow& operator=(const TextWindow&) = delete;

  // Returns 0 when the window cannot be made.
  HWND create(HWND parent, HINSTANCE instance);
  HWND window() const { return window_; }

  Place caret() const { return caret_; }
  bool insertMode() const { return insert_mode_; }
  // A column past the end of its line stays there; typing fills the gap with blanks.
  void setCaret(Place place, bool extend = false);
  void select(Place from, Place to);
  bool hasSelection() const { return !(anchor_ == caret_); }
  std::string selection() const;
  int topLine() const { return top_; }
  void setTopLine(int line) { scrollTo(line, left_); }
  // Scrolls the least that shows the line, without moving the caret.
  void showLine(int line);
  // text_hit.cpp: the caret's line is what was looked for. It is shown a third down the
  // window and stays marked until the caret leaves it or the text changes.
  void showHit();
  // -1 for none.
  int markedLine() const { return marked_; }
  int shownLines() const { return visibleLines(); }

  // Texts are in the document's encoding. Replaces the selection as typing does.
  void type(std::string_view text, Document::Edit kind = Document::Edit::kTyping);
  // Inserts at the caret, leaving it before the new text; the selection is given up.
  void insertBefore(std::string_view text);
  void undo();
  void redo();
  void copy();
  void cut();
  void paste();
  void clear();
  void selectAll();
  // Selects the next place of the text from the caret, going round at the end.
  bool findText(const TextSearch& search, bool backward);
  // text_replace.cpp: replaces the selection when it is a hit, and selects the next one.
  // False when there is none.
  bool replaceNext(const TextSearch& search, std::string_view with);
  // Replaces every hit, or those in the selection, which stays selected. Returns how many,
  // -1 when the text may not be edited.
  int replaceAll(const TextSearch& search, std::string_view with, bool in_selection);

  void settingsChanged();
  // While held, nothing is repainted; calls nest.
  void holdPainting(bool hold);

  void documentChanged(const DocumentChange& change) override;
  void documentStateChanged() override {}

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT handle(UINT message, WPARAM w, LPARAM l);
  LRESULT handleMouse(UINT message, WPARAM w, LPARAM l);
  // text_keys.cpp
  bool keyDown(WPARAM key);
  bool controlKey(WPARAM key, bool shift);
  bool motionKey(WPARAM key, bool shift, bool control);
  // A unit of UTF-16.
  void character(wchar_t unit);
  // In the document's encoding; false when it has no place for a character.
  bool encode(const std::wstring& wide, std::string* text);
  bool putSelection();
  Place wholeCharacter(Place place) const;
  void breakLine();
  void eraseBack(bool word);
  void eraseForward(bool word);
  void tabKey(bool shift);
  void moveVertically(int lines, bool extend);
  Place leftOf(Place place, bool word) const;
  Place rightOf(Place place, bool word) const;
  void eraseSelection();
  // text_paint.cpp
  void paint();
  void paintLine(HDC dc, int line, const RECT& row);
  void paintText(HDC dc, int line, const RECT& row);
  void paintMargin(HDC dc, int line, const RECT& row) const;
  int marginWidth() const { return marginWidth(document_.lineCount()); }
  int marginWidth(int lines) const;
  // text_repaint.cpp: what of the window does not show the text as it is.
  bool paints() const { return window_ != nullptr && painting_held_ == 0; }
  void repaint();
  void repaintLines(int first, int last);
  void repaintSelection();
  void repaintChange(const DocumentChange& change);
  void moveRows(int first, int rows);
  void moveView(int rows, int cells);
  // text_scroll.cpp
  void updateScrollBars();
  void setScrollBar(int bar, int last, int page, int position);
  void scroll(int bar, WPARAM w);
  void scrollTo(int top, int left);
  void wheel(int delta);
  void revealCaret();
  void unmark();
  void tintMarked(HDC dc, const RECT& row) const;
  int visibleLines() const;
  int visibleCells() const;

  void makeFont();
  void makeCaret();
  void placeCaret();
  void afterMove();
  Place placeAt(int x, int y) const;
  void trackWidth(int first, int last);

  Document& document_;
  const EditorSettings& settings_;
  TextWindowOwner& owner_;
  HWND window_ = nullptr;
  OwnedFont font_;
  int cell_width_ = 8;
  int line_height_ = 16;
  Highlighter highlighter_;
  Place caret_;
  Place anchor_;
  int marked_ = -1;  // the line of a hit; -1 for none
  // The selection as the window shows it where nothing is to be painted anew.
  Place shown_from_;
  Place shown_to_;
  int wanted_cell_ = -1;  // of vertical moves; -1 takes the caret's
  int top_ = 0;           // first line shown
  int left_ = 0;          // first cell shown
  int widest_ = 0;        // cells; an edit only ever widens it
  int wheel_rest_ = 0;
  wchar_t first_half_ = 0;   // of a character that comes as two units
  SCROLLINFO bars_[2] = {};  // as last set, by SB_HORZ and SB_VERT
  int painting_held_ = 0;
  bool insert_mode_ = true;
  bool dragging_ = false;
  bool focused_ = false;
};

}  // namespace workbench
