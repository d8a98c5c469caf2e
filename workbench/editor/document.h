// The text of one file as lines of bytes, with undo and redo. Every byte read is
// given back: NUL, Latin-1 and the end of each line (CR, LF or CR LF) as it was.
// Lines and columns are 0-based here; a column counts bytes. Places outside the
// text are taken to the nearest one inside. Plain values: no window, one thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/editor/encoding.h"
#include "workbench/editor/text_search.h"

namespace workbench {

enum class LineEnd : std::uint8_t { kNone, kCr, kLf, kCrLf };

struct Place {
  int line = 0;
  int column = 0;
  friend bool operator==(const Place&, const Place&) = default;
  friend bool operator<(const Place& a, const Place& b) {
    return a.line != b.line ? a.line < b.line : a.column < b.column;
  }
};

struct TextLine {
  std::string text;
  LineEnd end = LineEnd::kNone;
};

// A piece of text: one line at least, the last without an end.
using Fragment = std::vector<TextLine>;

// What one edit did: the text from `from` to `old_end` became that to `new_end`.
struct DocumentChange {
  Place from;
  Place old_end;
  Place new_end;
};

// What the bytes are read as, and whether the mark stands before them.
struct TextForm {
  Encoding encoding = Encoding::kAnsi;
  bool marked = false;
  friend bool operator==(const TextForm&, const TextForm&) = default;
};

class DocumentListener {
 public:
  virtual void documentChanged(const DocumentChange& change) = 0;
  // The modified state turned.
  virtual void documentStateChanged() = 0;

 protected:
  ~DocumentListener() = default;
};

class Document {
 public:
  // How an edit joins the step of undo before it: a run of typing or of erasing
  // is one step, any other edit is a step of its own.
  enum class Edit { kTyping, kErasing, kSingle };

  Document();

  // Replaces everything and forgets the history; the text counts as saved.
  void load(std::string_view bytes);
  // Makes the text these bytes, as an edit of the stretch that differs; returns which.
  DocumentChange renew(std::string_view bytes);
  std::string bytes() const;

  // What the bytes are read as; a mark at the file's start is none of the lines'.
  Encoding encoding() const { return form_.encoding; }
  // Lets characters beyond the code page in. False for a text that has bytes of it.
  bool becomeUtf8();

  int lineCount() const { return static_cast<int>(lines_.size()); }
  const std::string& line(int index) const { return lines_[static_cast<std::size_t>(index)].text; }
  LineEnd lineEnd(int index) const { return lines_[static_cast<std::size_t>(index)].end; }
  Place endPlace() const;
  Place clamp(Place place) const;
  // The text between two places with its line ends.
  std::string textBetween(Place from, Place to) const;

  // CR, LF and CR LF in the text each break the line with the prevailing end.
  // Returns the place after the inserted text.
  Place insert(Place at, std::string_view text, Edit kind = Edit::kSingle);
  // The places may come in either order.
  void erase(Place from, Place to, Edit kind = Edit::kSingle);

  // Edits between the two are one step of undo. They nest.
  void beginTransaction();
  void endTransaction();
  // Ends a run of typing or erasing: the next edit starts a new step.
  void breakRun() { run_ = Edit::kSingle; }

  bool canUndo() const { return position_ > 0 && depth_ == 0; }
  bool canRedo() const { return position_ < steps_.size() && depth_ == 0; }
  // False when there is nothing; else *caret is where the change ended.
  bool undo(Place* caret);
  bool redo(Place* caret);

  bool modified() const { return position_ != saved_; }
  // The text as it is now is what the file holds.
  void markSaved();
  // Nothing in the history is what the file holds.
  void markUnsaved();

  // Finds the text at or after a place (before it, when backward), not going round.
  bool find(const TextSearch& search, bool backward, Place start, Place* found) const;
  // Replaces every hit between two places, as one step of undo, by a text without line
  // ends. Returns how many; *to is then where the last place stands.
  int replaceAll(const TextSearch& search, std::string_view with, Place from, Place* to);

  void addListener(DocumentListener* listener);
  void removeListener(DocumentListener* listener);

 private:
  struct Change {
    Place at;
    Fragment removed;
    Fragment added;
    // A renewed text brings a form of its own.
    bool renews = false;
    TextForm old_form = {};
    TextForm new_form = {};
  };
  using Step = std::vector<Change>;

  // Notes encoding and mark; returns what follows the mark.
  std::string_view takeForm(std::string_view bytes);
  static Fragment split(std::string_view text, LineEnd all_ends);
  static Place endOf(Place at, const Fragment& fragment);
  Fragment cut(Place from, Place to);
  Fragment copy(Place from, Place to) const;
  void paste(Place at, const Fragment& fragment);
  void replace(Place at, const Fragment& old_text, const Fragment& new_text);
  void record(Change change, Edit kind);
  bool joinRun(const Change& change, Edit kind);
  void notify(const DocumentChange& change);
  void notifyState(bool was_modified);

  std::vector<TextLine> lines_;
  TextForm form_;
  // What a new line ends with: the end most lines have, CR LF in a text without one.
  LineEnd prevailing_ = LineEnd::kCrLf;
  std::vector<Step> steps_;
  std::size_t position_ = 0;  // steps before it are done, those from it on undone
  std::size_t saved_ = 0;     // kNever when no position equals the file
  int depth_ = 0;
  bool step_open_ = false;  // the transaction has its step already
  Edit run_ = Edit::kSingle;
  std::vector<DocumentListener*> listeners_;
};

}  // namespace workbench
