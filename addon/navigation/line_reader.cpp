#include "addon/navigation/line_reader.h"

#include "addon/navigation/line_ends.h"

namespace kesto {

void LineReader::readLineAt(std::size_t offset) {
  std::size_t start = offset;
  while (start > next_ && !endsLine(text_[start - 1])) {
    --start;
  }
  const char* const end = text_.data() + text_.size();
  const char* const line_end = findLineEnd(text_.data() + offset, end);
  start_ = start;
  size_ = static_cast<std::size_t>(line_end - text_.data()) - start;
  next_ = static_cast<std::size_t>(pastLineEnd(line_end, end) - text_.data());
}

int LineReader::number() {
  const char* at = text_.data() + counted_;
  const char* const start = text_.data() + start_;
  int lines = 0;
  for (; at != start; ++at) {
    // A line starts at start_, so the byte after a CR can be looked at.
    lines += endsLine(*at) && !(*at == '\r' && at[1] == '\n') ? 1 : 0;
  }
  counted_ = start_;
  number_ += lines;
  return number_;
}

}  // namespace kesto
