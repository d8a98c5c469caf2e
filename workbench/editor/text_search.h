// What is looked for in a text, and where it stands in a line. Plain values; columns
// are 0-based and count bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace workbench {

struct TextSearch {
  std::string text;
  bool match_case = false;
  bool whole_word = false;
};

class LineMatcher {
 public:
  static constexpr std::size_t kNone = std::string::npos;

  explicit LineMatcher(const TextSearch& search);
  // False when no line can hold the text.
  bool possible() const;
  std::size_t length() const { return wanted_.size(); }
  // The line that is asked about from now on.
  void take(std::string_view line);
  // The first hit that begins at the column or later.
  std::size_t first(std::size_t from) const;
  // The last hit that ends at the column or earlier.
  std::size_t last(std::size_t end) const;

 private:
  bool stands(std::size_t at) const;

  std::string wanted_;
  std::string line_;
  bool match_case_;
  bool whole_word_;
};

}  // namespace workbench
