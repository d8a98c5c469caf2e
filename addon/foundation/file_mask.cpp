#include "addon/foundation/file_mask.h"

#include <algorithm>

#include "addon/foundation/path.h"

namespace kesto {

namespace {

bool isPlain(char c) {
  constexpr std::string_view kSpecial = "?<>\"|\\/:";
  return static_cast<signed char>(c) >= ' ' && kSpecial.find(c) == std::string_view::npos;
}

}  // namespace

bool FileMask::plain() const {
  return !mask_.empty() && mask_.back() != '.' && mask_.back() != ' ' &&
         mask_.find("..") == std::string::npos && std::all_of(mask_.begin(), mask_.end(), isPlain);
}

// Only the last "*" met is ever taken back: it can stand for whatever an earlier one could.
bool FileMask::fits(std::string_view name) const {
  const std::string_view mask = mask_;
  // Most names are told by their last letter.
  if (!mask.empty() && mask.back() != '*' &&
      (name.empty() || upperAscii(mask.back()) != upperAscii(name.back()))) {
    return false;
  }
  std::size_t in_mask = 0;
  std::size_t in_name = 0;
  std::size_t star = std::string_view::npos;
  std::size_t after_star = 0;  // where in the name what follows the star is tried
  while (in_name < name.size()) {
    if (in_mask < mask.size() && mask[in_mask] == '*') {
      star = in_mask++;
      after_star = in_name;
    } else if (in_mask < mask.size() && upperAscii(mask[in_mask]) == upperAscii(name[in_name])) {
      ++in_mask;
      ++in_name;
    } else if (star != std::string_view::npos) {
      in_mask = star + 1;
      in_name = ++after_star;
    } else {
      return false;
    }
  }
  std::string_view rest = mask.substr(in_mask);
  while (rest.starts_with('*') || rest.starts_with(".*")) {
    rest.remove_prefix(1);
  }
  return rest.empty();
}

}  // namespace kesto
