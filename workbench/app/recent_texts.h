// The texts used last, the latest first, none twice. Plain values.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

class RecentTexts {
 public:
  using Same = bool (*)(std::string_view a, std::string_view b);

  // One more than `most` drops the oldest.
  RecentTexts(std::size_t most, Same same) : most_(most), same_(same) {}

  // Returns whether the list has changed.
  bool add(const std::string& text);
  bool remove(const std::string& text);
  const std::vector<std::string>& all() const { return texts_; }

 private:
  std::size_t most_;
  Same same_;
  std::vector<std::string> texts_;
};

// To the letter.
inline bool sameText(std::string_view a, std::string_view b) {
  return a == b;
}

// What a menu shows of a path: "&" as it stands, and the middle left out of a long one.
std::string menuTextOfPath(std::size_t number, const std::string& path);

}  // namespace workbench
