#include "addon/completion/keyword_order.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

#include "addon/completion/keyword_list.h"

namespace kesto {

namespace {

constexpr std::size_t kCharacters = 8;  // of a key
constexpr unsigned kByteBits = 8;
constexpr std::size_t kByteValues = 256;
// Below it comparing is faster than counting.
constexpr std::size_t kFewItems = 96;

struct Item {
  std::uint64_t key;
  std::uint32_t index;
};

// The characters from at, the first one highest; zeros behind the text's end.
std::uint64_t keyOf(std::string_view text, std::size_t at) {
  std::uint64_t key = 0;
  for (std::size_t i = at; i < at + kCharacters; ++i) {
    key = key << kByteBits | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
  }
  return key;
}

// Texts that end have equal keys only if they are equal.
bool goesOn(std::uint64_t key) {
  return (key & (kByteValues - 1)) != 0;
}

class Sorting {
 public:
  explicit Sorting(const std::vector<Keyword>& keywords)
      : keywords_(keywords), items_(keywords.size()), room_(keywords.size()) {
    for (std::size_t i = 0; i < items_.size(); ++i) {
      items_[i].index = static_cast<std::uint32_t>(i);
    }
    sort(items_, 0);
  }

  std::vector<std::uint32_t> order() const {
    std::vector<std::uint32_t> indices(items_.size());
    std::transform(items_.begin(), items_.end(), indices.begin(),
                   [](const Item& item) { return item.index; });
    return indices;
  }

 private:
  // Items that are equal up to the characters from depth; at most a line's length deep.
  void sort(std::span<Item> items, std::size_t depth) {  // NOLINT(misc-no-recursion)
    for (Item& item : items) {
      item.key = keyOf(keywords_[item.index].text(), depth);
    }
    if (items.size() < kFewItems) {
      sortFew(items, depth);
      return;
    }
    sortByKey(items);
    for (std::size_t from = 0; from < items.size();) {
      std::size_t to = from + 1;
      while (to < items.size() && items[to].key == items[from].key) {
        ++to;
      }
      if (to - from > 1 && goesOn(items[from].key)) {
        sort(items.subspan(from, to - from), depth + kCharacters);
      }
      from = to;
    }
  }

  void sortFew(std::span<Item> items, std::size_t depth) const {
    std::sort(items.begin(), items.end(), [this, depth](const Item& left, const Item& right) {
      if (left.key != right.key) {
        return left.key < right.key;
      }
      const int rest = goesOn(left.key) ? rest_(left, depth).compare(rest_(right, depth)) : 0;
      return rest != 0 ? rest < 0 : left.index < right.index;
    });
  }

  std::string_view rest_(const Item& item, std::size_t depth) const {
    return keywords_[item.index].text().substr(depth + kCharacters);
  }

  // A pass for each byte from the lowest up, none where all have the same.
  void sortByKey(std::span<Item> items) {
    std::array<std::array<std::uint32_t, kByteValues>, kCharacters> counts = {};
    for (const Item& item : items) {
      for (std::size_t i = 0; i < kCharacters; ++i) {
        ++counts[i][byteOf(item, i)];
      }
    }
    std::span<Item> from = items;
    std::span<Item> to = std::span(room_).first(items.size());
    for (std::size_t i = 0; i < kCharacters; ++i) {
      if (counts[i][byteOf(items[0], i)] == items.size()) {
        continue;
      }
      std::uint32_t place = 0;
      for (std::uint32_t& count : counts[i]) {
        place += std::exchange(count, place);
      }
      for (const Item& item : from) {
        to[counts[i][byteOf(item, i)]++] = item;
      }
      std::swap(from, to);
    }
    if (from.data() != items.data()) {
      std::copy(from.begin(), from.end(), items.begin());
    }
  }

  static std::size_t byteOf(const Item& item, std::size_t byte) {
    return (item.key >> (byte * kByteBits)) & (kByteValues - 1);
  }

  const std::vector<Keyword>& keywords_;
  std::vector<Item> items_;
  std::vector<Item> room_;
};

}  // namespace

std::vector<std::uint32_t> keywordOrder(const std::vector<Keyword>& keywords) {
  return Sorting(keywords).order();
}

}  // namespace kesto
