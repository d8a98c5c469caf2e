// How often a text holds another.
#pragma once

#include <string>

namespace kesto {

inline int count(const std::string& text, const std::string& wanted) {
  int found = 0;
  for (std::size_t at = 0; (at = text.find(wanted, at)) != std::string::npos; ++at) {
    ++found;
  }
  return found;
}

}  // namespace kesto
