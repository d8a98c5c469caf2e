#include "addon/foundation/menu_text.h"

namespace kesto {

std::string menuText(std::string_view text) {
  std::string result;
  for (const char c : text) {
    result += c;
    if (c == '&') {
      result += c;
    }
  }
  return result;
}

}  // namespace kesto
