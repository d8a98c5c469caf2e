// Where lines end: at CR, at LF and at a zero byte; a CR and the LF after it end
// one line. Inline, for the loops that go over whole sources.
#pragma once

#include <bit>
#include <cstddef>
#include <cstring>

namespace kesto {

constexpr bool endsLine(char c) {
  return c == '\n' || c == '\r' || c == '\0';
}

// The next line end in [at, end), or end. A machine word at a time: a word without a
// byte below 14 holds none of the three. The lowest byte that the test finds is such
// a one; those above it may be wrong, and tabs are not meant.
inline const char* findLineEnd(const char* at, const char* end) {
  constexpr std::size_t kOnes = ~std::size_t{0} / 0xFF;
  constexpr std::ptrdiff_t kWord = sizeof(std::size_t);
  for (; end - at >= kWord; at += kWord) {
    std::size_t word = 0;
    memcpy(&word, at, sizeof word);
    std::size_t found = (word - kOnes * 14) & ~word & (kOnes * 0x80);
    for (; found != 0; found &= found - 1) {
      const char* const candidate = at + std::countr_zero(found) / 8;
      if (endsLine(*candidate)) {
        return candidate;
      }
    }
  }
  while (at != end && !endsLine(*at)) {
    ++at;
  }
  return at;
}

// Where the line after a line end starts.
inline const char* pastLineEnd(const char* line_end, const char* end) {
  if (line_end == end) {
    return end;
  }
  const bool pair = *line_end == '\r' && end - line_end > 1 && line_end[1] == '\n';
  return line_end + (pair ? 2 : 1);
}

}  // namespace kesto
