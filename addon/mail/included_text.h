// The text of a file that a mail carries in its note, and what the file is to hold once the
// mail is on its way: others may have added to it meanwhile. Plain code, from bytes to bytes.
#pragma once

#include <optional>
#include <string>

namespace kesto {

class IncludedText {
 public:
  // The file's bytes.
  explicit IncludedText(std::string bytes);

  // The text in text mode, and the closing lines. A zero byte, which would end a note,
  // comes as a blank.
  void appendTo(std::string& note) const;
  // The text that is left of a file which now has these bytes; nothing when it no longer
  // begins with what was read.
  std::optional<std::string> restOf(std::string bytes) const;

 private:
  std::string read_;  // up to the end of the text, its mark included
};

}  // namespace kesto
