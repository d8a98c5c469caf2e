// The lines of a source's text. A search does not look at every line: it finds a
// place in the text and asks for the line around it, and for the line's number only
// when the line is a hit. A zero byte ends a line, not the text.
//
// Works on the caller's text, which must outlive it. Time grows with the text alone.
#pragma once

#include <cstddef>
#include <string_view>

namespace kesto {

class LineReader {
 public:
  explicit LineReader(std::string_view text) : text_(text) {}

  std::string_view text() const { return text_; }
  // Offset of the first line not yet read; the text's size at its end.
  std::size_t next() const { return next_; }
  // Makes the line that holds the byte at offset the current one; offset must not
  // be below next(), and must be below the text's size.
  void readLineAt(std::size_t offset);

  // The current line without its end.
  std::string_view line() const { return text_.substr(start_, size_); }
  std::size_t start() const { return start_; }
  // Its number, from 1.
  int number();

 private:
  std::string_view text_;
  std::size_t start_ = 0;
  std::size_t size_ = 0;
  std::size_t next_ = 0;
  std::size_t counted_ = 0;  // start of the line with that number
  int number_ = 1;
};

}  // namespace kesto
