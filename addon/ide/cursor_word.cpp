#include "addon/ide/cursor_word.h"

#include <algorithm>

#include "addon/foundation/identifier.h"

namespace kesto {
namespace {

constexpr size_t kLongestWord = 255;
constexpr unsigned char kLastControl = 0x1F;

bool below(char character, char limit) {
  return static_cast<unsigned char>(character) < static_cast<unsigned char>(limit);
}

}  // namespace

std::string_view wordAround(std::string_view line, int column) {
  if (column < 1 || static_cast<size_t>(column) > line.size()) {
    return {};
  }
  size_t start = static_cast<size_t>(column) - 1;
  size_t end = start;
  while (start > 0 && isIdentifierCharacter(line[start - 1])) {
    --start;
  }
  while (end < line.size() && static_cast<unsigned char>(line[end]) > kLastControl &&
         isIdentifierCharacter(line[end])) {
    ++end;
  }
  std::string_view word = line.substr(start, std::min(end - start, kLongestWord));
  while (!word.empty() && below(word.front(), '!')) {
    word.remove_prefix(1);
  }
  while (!word.empty() && below(word.back(), '!')) {
    word.remove_suffix(1);
  }
  return word;
}

std::string_view wordBefore(std::string_view line, int column) {
  if (column <= 1 || static_cast<size_t>(column) - 1 > line.size()) {
    return {};
  }
  const size_t end = static_cast<size_t>(column) - 1;
  size_t start = end;
  while (start > 0 && isIdentifierCharacter(line[start - 1])) {
    --start;
  }
  return line.substr(start, end - start);
}

}  // namespace kesto
