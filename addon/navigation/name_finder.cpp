#include "addon/navigation/name_finder.h"

#include <cstring>

namespace kesto {

namespace {

// The commonest bytes of C++ sources, falling; those left out are rarer still.
constexpr std::string_view kCommonFirst = " etsirnaoclp_umd/fhg-TESv";

std::size_t rarity(char c) {
  // npos is the greatest.
  return kCommonFirst.find(c);
}

// Where the byte comes first, or the end. The library's own search of old systems goes
// byte by byte.
const char* findByte(const char* at, const char* end, char wanted) {
  using Word = std::size_t;
  constexpr std::ptrdiff_t kStep = 4 * sizeof(Word);
  constexpr Word kOnes = ~Word{0} / 0xFF;
  const Word everywhere = kOnes * static_cast<unsigned char>(wanted);
  for (; end - at >= kStep; at += kStep) {
    Word words[4];
    memcpy(words, at, sizeof words);
    Word zeros = 0;
    for (Word word : words) {
      word ^= everywhere;
      // Marks the zero bytes, and may mark others above one of them.
      zeros |= (word - kOnes) & ~word;
    }
    if ((zeros & (kOnes * 0x80)) != 0) {
      break;
    }
  }
  while (at != end && *at != wanted) {
    ++at;
  }
  return at;
}

}  // namespace

NameFinder::NameFinder(std::string_view name) : name_(name) {
  for (std::size_t i = 1; i < name.size(); ++i) {
    if (rarity(name[i]) > rarity(name[rare_])) {
      rare_ = i;
    }
  }
}

std::size_t NameFinder::find(std::string_view text, std::size_t from) const {
  if (name_.empty() || text.size() < name_.size() || from > text.size() - name_.size()) {
    return std::string_view::npos;
  }
  const char* at = text.data() + from + rare_;
  // Where the rare byte of the last possible occurrence would lie, and one on.
  const char* const end = text.data() + (text.size() - name_.size()) + rare_ + 1;
  for (at = findByte(at, end, name_[rare_]); at != end; at = findByte(at + 1, end, name_[rare_])) {
    if (memcmp(at - rare_, name_.data(), name_.size()) == 0) {
      return static_cast<std::size_t>(at - text.data()) - rare_;
    }
  }
  return std::string_view::npos;
}

}  // namespace kesto
