#include "addon/navigation/line_reader.h"

#include <algorithm>

#include "addon/navigation/line_ends.h"

namespace kesto {

void LineReader::readLineAt(std::size_t offset) {
  start_ = offset;
  while (start_ > next_ && !endsLine(text_[start_ - 1])) {
    --start_;
  }
  std::size_t end = offset;
  while (end < text_.size() && !endsLine(text_[end])) {
    ++end;
  }
  size_ = end - start_;
  const bool pair = text_.substr(end, 2) == "\r\n";
  next_ = std::min(text_.size(), end + (pair ? 2 : 1));
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
