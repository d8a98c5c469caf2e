// The keywords of all keyword files, sorted. A keyword file holds one keyword a line,
// "keyword" or "keyword|description"; empty lines and those that begin with "[" hold none.
// The list owns the files' texts, of which its keywords are parts. Plain, one user.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "addon/foundation/basic.h"
#include "addon/foundation/file_system.h"
#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"

namespace kesto {

// Room for a line of a keyword file: a longer one is several.
inline constexpr std::size_t kKeywordLineSize = 399;
// What is held at most, of however many and long files: a process of 32 bits has no more
// to spare. What is beyond goes as unread.
inline constexpr std::size_t kKeywordLimit = 1'000'000;
inline constexpr std::size_t kKeywordTextLimit = std::size_t{64} * 1024 * 1024;

// A line of a keyword file; refers to the characters it was made of.
class Keyword : public Basic {
 public:
  explicit Keyword(std::string_view line = {});

  std::string_view text() const { return {line_, text_size_}; }
  // Empty when there is none.
  std::string_view description() const { return {line_ + description_at_, description_size_}; }

 private:
  const char* line_;
  std::uint16_t text_size_;
  std::uint16_t description_at_;
  std::uint16_t description_size_;
};

// Appends what the lines of a keyword file's text hold, as they come.
void readKeywords(std::string_view file, std::vector<Keyword>& keywords);

class KeywordList {
 public:
  // Positions in the list; none when last is before first.
  struct Range {
    int first;
    int last;
  };

  KeywordList() { sorted_.setOwns(false); }

  // Replaces the keywords by those of the files. One that cannot be read is skipped.
  void load(FileSystem& files, const Tableau<String>& paths);

  int count() const { return sorted_.count(); }
  // In ascending byte order of their texts; equal ones as they stood in the files.
  const Keyword& at(int position) const { return *sorted_.at(position); }
  // Those whose texts begin with the prefix.
  Range beginningWith(std::string_view prefix) const;

 private:
  std::vector<std::string> texts_;
  std::vector<Keyword> keywords_;
  Tableau<Keyword> sorted_;
};

}  // namespace kesto
