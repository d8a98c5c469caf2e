#include "addon/completion/keyword_order.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include "addon/completion/keyword_list.h"

namespace kesto {

namespace {

constexpr std::size_t kKeySize = 8;  // characters of each key
constexpr std::size_t kCharacters = 2 * kKeySize;
constexpr unsigned kByteBits = 8;
constexpr std::uint64_t kByteMask = 0xFF;
constexpr unsigned kDigitBits = 16;
constexpr std::size_t kDigitValues = std::size_t{1} << kDigitBits;
constexpr std::size_t kDigitsOfKey = 64 / kDigitBits;
// Below it comparing is faster than counting.
constexpr std::size_t kFewItems = 1024;

struct Item {
  std::uint64_t high;  // the first of its characters
  std::uint64_t low;
  std::uint32_t index;
};

// The characters from at, the first one highest; zeros behind the text's end.
std::uint64_t keyOf(std::string_view text, std::size_t at) {
  std::uint64_t key = 0;
  if (at + kKeySize <= text.size()) {
    for (std::size_t i = 0; i < kKeySize; ++i) {
      key = key << kByteBits | static_cast<unsigned char>(text[at + i]);
    }
    return key;
  }
  for (std::size_t i = at; i < at + kKeySize; ++i) {
    key = key << kByteBits | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  }
  return key;
}

std::size_t digitOf(const Item& item, std::size_t digit) {
  const std::uint64_t key = digit < kDigitsOfKey ? item.low : item.high;
  return (key >> (digit % kDigitsOfKey * kDigitBits)) & (kDigitValues - 1);
}

bool isBefore(const Item& left, const Item& right) {
  if (left.high != right.high) {
    return left.high < right.high;
  }
  return left.low != right.low ? left.low < right.low : left.index < right.index;
}

class Sorting {
 public:
  explicit Sorting(const std::vector<Keyword>& keywords)
      : keywords_(keywords),
        items_(std::make_unique_for_overwrite<Item[]>(keywords.size())),
        room_(std::make_unique_for_overwrite<Item[]>(keywords.size())) {
    for (std::size_t i = 0; i < keywords.size(); ++i) {
      items_[i].index = static_cast<std::uint32_t>(i);
    }
    sort(items(), 0);
  }

  std::span<const Item> items() const { return {items_.get(), keywords_.size()}; }

 private:
  std::span<Item> items() { return {items_.get(), keywords_.size()}; }

  // Items that are equal in the characters before depth, in the order of their indices.
  void sort(std::span<Item> items, std::size_t depth) {  // NOLINT(misc-no-recursion)
    for (Item& item : items) {
      const std::string_view text = keywords_[item.index].text();
      item.high = keyOf(text, depth);
      item.low = keyOf(text, depth + kKeySize);
    }
    // Whoever writes lists of words keeps them in order.
    if (!std::is_sorted(items.begin(), items.end(), isBefore)) {
      if (items.size() < kFewItems) {
        std::sort(items.begin(), items.end(), isBefore);
      } else {
        sortByDigits(items);
      }
    }
    for (std::size_t from = 0; from < items.size();) {
      const Item& first = items[from];
      std::size_t to = from + 1;
      while (to < items.size() && items[to].high == first.high && items[to].low == first.low) {
        ++to;
      }
      // Texts that have ended are equal.
      if (to - from > 1 && (first.low & kByteMask) != 0) {
        sort(items.subspan(from, to - from), depth + kCharacters);
      }
      from = to;
    }
  }

  // From the lowest digit up, none where all have the same.
  void sortByDigits(std::span<Item> items) {
    std::span<Item> from = items;
    std::span<Item> to(room_.get(), items.size());
    std::vector<std::uint32_t> ends(kDigitValues);
    for (std::size_t digit = 0; digit < 2 * kDigitsOfKey; ++digit) {
      std::fill(ends.begin(), ends.end(), 0);
      for (const Item& item : from) {
        ++ends[digitOf(item, digit)];
      }
      if (ends[digitOf(from[0], digit)] == items.size()) {
        continue;
      }
      std::uint32_t place = 0;
      for (std::uint32_t& end : ends) {
        place += std::exchange(end, place);
      }
      for (const Item& item : from) {
        to[ends[digitOf(item, digit)]++] = item;
      }
      std::swap(from, to);
    }
    if (from.data() != items.data()) {
      std::copy(from.begin(), from.end(), items.begin());
    }
  }

  const std::vector<Keyword>& keywords_;
  std::unique_ptr<Item[]> items_;
  std::unique_ptr<Item[]> room_;
};

}  // namespace

void sortKeywords(std::vector<Keyword>& keywords, Tableau<Keyword>& sorted) {
  const Sorting sorting(keywords);
  sorted.clear();
  sorted.openGap(0, static_cast<int>(keywords.size()));
  int place = 0;
  for (const Item& item : sorting.items()) {
    sorted.set(place++, &keywords[item.index]);
  }
}

}  // namespace kesto
