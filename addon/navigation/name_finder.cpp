#include "addon/navigation/name_finder.h"

#include <algorithm>
#include <cstring>

namespace kesto {

namespace {

unsigned char distance(std::size_t bytes) {
  // A shorter move than possible is only slower.
  return static_cast<unsigned char>(std::min<std::size_t>(bytes, 255));
}

unsigned char byteOf(char c) {
  return static_cast<unsigned char>(c);
}

}  // namespace

NameFinder::NameFinder(std::string_view name) : name_(name) {
  std::fill(std::begin(skip_), std::end(skip_), distance(name.size()));
  for (std::size_t i = 0; i + 1 < name.size(); ++i) {
    skip_[byteOf(name[i])] = distance(name.size() - 1 - i);
  }
  if (!name.empty()) {
    after_last_ = skip_[byteOf(name.back())];
    skip_[byteOf(name.back())] = 0;
  }
}

bool NameFinder::endsAt(std::string_view text, std::size_t last) const {
  const std::size_t before = name_.size() - 1;
  return memcmp(text.data() + last - before, name_.data(), before) == 0;
}

std::size_t NameFinder::find(std::string_view text, std::size_t from) const {
  const std::size_t size = name_.size();
  if (size < 2) {
    return size == 0 ? std::string_view::npos : text.find(name_[0], from);
  }
  std::size_t last = from + size - 1;
  while (last < text.size()) {
    // Three moves without a test of the end; none is longer than the name, and one
    // onto the last byte stays there.
    if (text.size() - last > 3 * size) {
      last += skip_[byteOf(text[last])];
      last += skip_[byteOf(text[last])];
      last += skip_[byteOf(text[last])];
    }
    const unsigned char skip = skip_[byteOf(text[last])];
    if (skip == 0 && endsAt(text, last)) {
      return last - (size - 1);
    }
    last += skip != 0 ? skip : after_last_;
  }
  return std::string_view::npos;
}

}  // namespace kesto
