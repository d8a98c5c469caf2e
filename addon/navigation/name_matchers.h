// Which lines of a source a search takes for a name. Line filters, not parsers; only
// the first occurrence of the name in a line is tried, and it has to stand alone: no
// identifier character before or after it.
//
//   function   int Paint(HDC dc)           column one, no ";", the name before a "("
//   method     void Frame::Paint(HDC dc)   the same with a "::" before the name
//   class      class Frame : public Win    "class" in column one, no ";"
//   cross         frame.Paint(dc);         indented: a use inside a body
//
// A name in column one is a function's, and never a cross reference. A line that
// starts with a byte above 127 counts as indented: characters are signed.
#pragma once

#include <string_view>

#include "addon/navigation/line_reader.h"
#include "addon/navigation/name_finder.h"

namespace kesto {

enum class Search : int { kFunction = 0, kMethod = 1, kClass = 2, kCross = 3 };
inline constexpr int kSearchCount = 4;

class NameMatcher {
 public:
  // The name's bytes are taken as they are.
  NameMatcher(Search search, std::string_view name);

  // Moves the reader on to its next line that is a hit; false when none is left.
  // text becomes what a list of hits shows: Class::name for a method, else the line.
  bool findNext(LineReader& reader, std::string_view& text) const;

 private:
  Search search_;
  bool possible_;  // a name with a line end in it is in no line
  NameFinder finder_;
};

}  // namespace kesto
