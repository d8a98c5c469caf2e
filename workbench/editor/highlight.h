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

// Remembers for each line whether it begins inside a comment.
class Highlighter {
 public:
  // The lines from this one on have changed.
  void invalidate(int line);
  std::vector<TextRun> runs(const Document& document, int line);

 private:
  std::vector<bool> begins_in_comment_;
};

}  // namespace workbench
