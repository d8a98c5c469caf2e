// The places of one name in many texts. Built once a search: it skips through a text
// by what its name cannot contain.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kesto {

class NameFinder {
 public:
  explicit NameFinder(std::string_view name);

  const std::string& name() const { return name_; }
  // Offset of the first occurrence that starts at from or later, npos when there is
  // none; an empty name occurs nowhere.
  std::size_t find(std::string_view text, std::size_t from) const;

 private:
  bool endsAt(std::string_view text, std::size_t last) const;

  std::string name_;
  // How far the name may move when a byte stands under its last one; 0 for the last
  // byte itself, which calls for a comparison and then a move by after_last_.
  unsigned char skip_[256];
  unsigned char after_last_ = 1;
};

}  // namespace kesto
