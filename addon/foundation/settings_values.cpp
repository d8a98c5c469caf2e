#include "addon/foundation/settings_values.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdlib>

namespace kesto {

void formatInteger(int value, char (&text)[kIntegerTextSize]) {
  *std::to_chars(text, text + sizeof text - 1, value).ptr = '\0';
}

int parseInteger(const char* text, int default_value) {
  char* end = nullptr;
  const long value = strtol(text, &end, 10);
  if (end == text) {
    return default_value;
  }
  return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

}  // namespace kesto
