// Colours a line of C++: comments, texts, numbers, keywords and preprocessor
// lines. Forgiving, because sources are half-typed. Plain values.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "workbench/editor/document.h"

namespace workbench {

enum class TextKind : std::uint8_t {
  kPlain,
  kComment,
  kText,
  kNumber,
  kKeyword,
  kPreprocessor,
};

// A run of bytes of one kind; runs cover the line in order.
struct TextRun {
  int from;
  int to;
  TextKind kind;
};

// Splits one line; in_comment tells whether it begins inside a comment of several
// lines, the result whether the next one does. Runs may be null.
bool highlightLine(std::string_view line, bool in_comment, std::vector<TextRun>* runs);

// Remembers for each line whether it begins inside a comment. After a change lines are
// looked at anew only up to the first that begins as it did before.
class Highlighter {
 public:
  void documentChanged(const DocumentChange& change);
  // Makes sure of the beginnings of all lines up to this one. Returns the line after the
  // last whose beginning has turned since it was last made sure of; 0 for none.
  int makeSure(const Document& document, int line);
  bool beginsInComment(const Document& document, int line);
  std::vector<TextRun> runs(const Document& document, int line);

 private:
  // Bytes, not bits: lines come and go in the middle.
  std::vector<std::uint8_t> begins_in_comment_ = {0};
  int sure_ = 1;  // so many are right
  // Of those that are not sure, the ones from here on follow from each other.
  int follows_from_ = 0;
};

}  // namespace workbench
