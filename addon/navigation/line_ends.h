// The lines of a text, as a filter sees them that only wants those which begin in
// column one. A line ends at CR, at LF or at both as a pair, and the text at its
// first zero byte.
//
// A block of 64 bytes becomes masks, a bit for each byte, so that all other lines
// cost no more than the bytes they are made of. Views into the caller's text;
// nothing is allocated or copied.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kesto {

constexpr bool endsLine(char c) {
  return c == '\n' || c == '\r' || c == '\0';
}

// Not a blank, nor a control character, nor a byte above 127.
constexpr bool beginsFlushLeft(char c) {
  return static_cast<signed char>(c) > 32;
}

inline constexpr std::size_t kLineBlock = 64;

struct LineMasks {
  std::uint64_t cr = 0;
  std::uint64_t lf = 0;
  std::uint64_t zero = 0;
};

// Of a mask that is not 0. Written out: where words have 32 bits std::countr_zero is a call,
// of code that is newer than the i586.
inline int lowestBit(std::uint64_t mask) {
  if constexpr (sizeof(std::size_t) == sizeof mask) {
    return std::countr_zero(mask);
  }
  const auto low = static_cast<std::uint32_t>(mask);
  return low != 0 ? std::countr_zero(low)
                  : 32 + std::countr_zero(static_cast<std::uint32_t>(mask >> 32));
}

// Both searches tell the same of the kLineBlock bytes at block: where it has CR, LF
// and zero bytes, and which bytes of those in starts can begin a line flush left.

// For every processor, a machine word at a time.
struct WordSearch {
  static LineMasks masks(const char* block) {
    constexpr std::size_t kOnes = ~std::size_t{0} / 0xFF;
    LineMasks found;
    for (std::size_t at = 0; at < kLineBlock; at += sizeof(std::size_t)) {
      std::size_t word = 0;
      memcpy(&word, block + at, sizeof word);
      // Marks the bytes below 14, and may mark others above one of them.
      std::size_t low = (word - kOnes * 14) & ~word & (kOnes * 0x80);
      for (; low != 0; low &= low - 1) {
        const std::size_t byte = at + static_cast<std::size_t>(std::countr_zero(low)) / 8;
        const std::uint64_t bit = std::uint64_t{1} << byte;
        switch (block[byte]) {
          case '\r':
            found.cr |= bit;
            break;
          case '\n':
            found.lf |= bit;
            break;
          case '\0':
            found.zero |= bit;
            break;
          default:
            break;
        }
      }
    }
    return found;
  }

  static std::uint64_t flushLeft(const char* block, std::uint64_t starts) {
    std::uint64_t found = 0;
    for (; starts != 0; starts &= starts - 1) {
      const int byte = lowestBit(starts);
      found |= std::uint64_t{beginsFlushLeft(block[byte])} << byte;
    }
    return found;
  }
};

#if defined(__SSE2__)

// 16 bytes at a time.
class VectorSearch {
 public:
  static LineMasks masks(const char* block) {
    const __m128i a = load(block);
    const __m128i b = load(block + 16);
    const __m128i c = load(block + 32);
    const __m128i d = load(block + 48);
    const auto equal = [&](char wanted) {
      const __m128i all = _mm_set1_epi8(wanted);
      return mask(_mm_cmpeq_epi8(a, all), _mm_cmpeq_epi8(b, all), _mm_cmpeq_epi8(c, all),
                  _mm_cmpeq_epi8(d, all));
    };
    LineMasks found = {equal('\r'), equal('\n'), 0};
    const __m128i least = _mm_min_epu8(_mm_min_epu8(a, b), _mm_min_epu8(c, d));
    if (_mm_movemask_epi8(_mm_cmpeq_epi8(least, _mm_setzero_si128())) != 0) {
      found.zero = equal('\0');
    }
    return found;
  }

  static std::uint64_t flushLeft(const char* block, std::uint64_t starts) {
    const __m128i blank = _mm_set1_epi8(32);
    return starts &
           mask(_mm_cmpgt_epi8(load(block), blank), _mm_cmpgt_epi8(load(block + 16), blank),
                _mm_cmpgt_epi8(load(block + 32), blank), _mm_cmpgt_epi8(load(block + 48), blank));
  }

 private:
  static __m128i load(const char* bytes) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
  }
  static std::uint64_t bits(__m128i bytes) {
    return static_cast<unsigned>(_mm_movemask_epi8(bytes));
  }
  static std::uint64_t mask(__m128i a, __m128i b, __m128i c, __m128i d) {
    return bits(a) | bits(b) << 16 | bits(c) << 32 | bits(d) << 48;
  }
};

using LineSearch = VectorSearch;

#else

using LineSearch = WordSearch;

#endif

// Hands out the lines that begin flush left, one after the other.
template <class Search = LineSearch>
class FlushLeftLines {
 public:
  explicit FlushLeftLines(std::string_view text) : block_(text.data()), end_(block_ + text.size()) {
    enterBlock();
  }

  // The next such line, without what ends it; false when the text has no more.
  bool next(std::string_view& line) {
    while (starts_ == 0) {
      if (static_cast<std::size_t>(end_ - block_) <= kLineBlock) {
        return false;
      }
      lines_before_ += bitCount(line_ends_);
      block_ += kLineBlock;
      enterBlock();
    }
    start_ = lowestBit(starts_);
    starts_ &= starts_ - 1;
    const std::uint64_t ends = ends_ >> start_;
    const char* const start = block_ + start_;
    const char* const stop = ends != 0 ? start + lowestBit(ends) : endBeyond(block_ + kLineBlock);
    line = std::string_view(start, static_cast<std::size_t>(stop - start));
    return true;
  }

  // Of the line that next() gave last, from 1.
  int number() const { return lines_before_ + bitCount(line_ends_ & bitsBelow(start_)) + 1; }

 private:
  static std::uint64_t bitsBelow(int bit) { return (std::uint64_t{1} << bit) - 1; }

  // Written out: without a machine instruction for it std::popcount is a call.
  static int bitCount(std::uint64_t mask) {
    constexpr std::uint64_t kOnes = ~std::uint64_t{0};
    mask -= mask >> 1 & kOnes / 3;
    mask = (mask & kOnes / 5) + (mask >> 2 & kOnes / 5);
    mask = (mask + (mask >> 4)) & kOnes / 17;
    return static_cast<int>(mask * (kOnes / 255) >> 56);
  }

  void enterBlock() {
    const auto left = static_cast<std::size_t>(end_ - block_);
    if (left >= kLineBlock) {
      enter(block_);
    } else {
      char padded[kLineBlock] = {};
      std::copy(block_, end_, padded);
      enter(padded);
    }
  }

  // Makes the masks of the block, whose bytes are given; a zero byte moves end_ there.
  void enter(const char* bytes) {
    const LineMasks found = Search::masks(bytes);
    const std::uint64_t breaks = found.cr | found.lf;
    ends_ = breaks | found.zero;
    // The LF of a pair ends no line of its own.
    line_ends_ = ends_ & ~(found.lf & (found.cr << 1 | after_cr_));
    starts_ = Search::flushLeft(bytes, breaks << 1 | after_break_);
    after_cr_ = found.cr >> (kLineBlock - 1);
    after_break_ = breaks >> (kLineBlock - 1);
    if (found.zero != 0) {
      const int zero = lowestBit(found.zero);
      end_ = block_ + zero;
      starts_ &= bitsBelow(zero);
    }
  }

  // The end of a line that leaves its block.
  const char* endBeyond(const char* at) const {
    for (; end_ - at >= static_cast<std::ptrdiff_t>(kLineBlock); at += kLineBlock) {
      const LineMasks found = Search::masks(at);
      if (const std::uint64_t ends = found.cr | found.lf | found.zero; ends != 0) {
        return at + lowestBit(ends);
      }
    }
    while (at < end_ && !endsLine(*at)) {
      ++at;
    }
    return at;
  }

  const char* block_;
  const char* end_;
  std::uint64_t ends_ = 0;         // CR, LF and zero bytes of the block
  std::uint64_t line_ends_ = 0;    // those that end a line
  std::uint64_t starts_ = 0;       // where lines begin flush left, as far as not handed out
  std::uint64_t after_cr_ = 0;     // 1 when the byte before the block is a CR
  std::uint64_t after_break_ = 1;  // 1 when a line begins with the block
  int lines_before_ = 0;           // the block
  int start_ = 0;                  // byte of the block where the last line began
};

}  // namespace kesto
