// The places of one name in many texts. Looks for the byte of the name that sources
// hold least, many bytes at a time, and compares only there.
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
  std::string name_;
  std::size_t rare_ = 0;  // offset in the name of its rarest byte
};

}  // namespace kesto
