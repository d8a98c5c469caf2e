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
  while (at != end) {
    at = static_cast<const char*>(memchr(at, name_[rare_], static_cast<std::size_t>(end - at)));
    if (at == nullptr) {
      break;
    }
    if (memcmp(at - rare_, name_.data(), name_.size()) == 0) {
      return static_cast<std::size_t>(at - text.data()) - rare_;
    }
    ++at;
  }
  return std::string_view::npos;
}

}  // namespace kesto
