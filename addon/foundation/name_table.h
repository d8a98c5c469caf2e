// Values by names, found as fast among many as among few; in no order. Name is
// std::string for a table that keeps its names, and std::string_view for one that only
// refers to them, which must then outlive it. A value stays at its place until the table
// is cleared. One user, no locking.
//
// The library's own tables would bring code along that is newer than the i586.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace kesto {

template <class Name, class Value>
class NameTable {
 public:
  NameTable() = default;
  NameTable(const NameTable&) = delete;
  NameTable& operator=(const NameTable&) = delete;

  // Null when there is none.
  Value* find(std::string_view name) {
    Entry* const entry = entryOf(name, Hash()(name));
    return entry != nullptr ? &entry->value : nullptr;
  }
  const Value* find(std::string_view name) const {
    const Entry* const entry = entryOf(name, Hash()(name));
    return entry != nullptr ? &entry->value : nullptr;
  }
  // The value of that name, made when there is none.
  Value& operator[](std::string_view name) {
    const std::size_t hash = Hash()(name);
    if (Entry* const known = entryOf(name, hash); known != nullptr) {
      return known->value;
    }
    if (entries_.size() >= chains_.size()) {
      grow();
    }
    Entry*& chain = chainOf(hash);
    chain = &entries_.emplace_back(Name(name), hash, chain);
    return chain->value;
  }
  std::size_t size() const { return entries_.size(); }
  void clear() {
    entries_.clear();
    chains_.clear();
  }

 private:
  using Hash = std::hash<std::string_view>;

  struct Entry {
    Entry(Name its_name, std::size_t its_hash, Entry* behind)
        : name(std::move(its_name)), hash(its_hash), next(behind) {}

    Name name;
    std::size_t hash;
    Entry* next;  // of the same chain
    Value value{};
  };

  // There are as many chains as a power of two.
  Entry*& chainOf(std::size_t hash) { return chains_[hash & (chains_.size() - 1)]; }
  Entry* entryOf(std::string_view name, std::size_t hash) const {
    if (chains_.empty()) {
      return nullptr;
    }
    Entry* entry = chains_[hash & (chains_.size() - 1)];
    while (entry != nullptr && (entry->hash != hash || entry->name != name)) {
      entry = entry->next;
    }
    return entry;
  }
  void grow() {
    chains_.assign(chains_.empty() ? kFirstChains : 2 * chains_.size(), nullptr);
    for (Entry& entry : entries_) {
      Entry*& chain = chainOf(entry.hash);
      entry.next = chain;
      chain = &entry;
    }
  }

  static constexpr std::size_t kFirstChains = 16;

  std::deque<Entry> entries_;
  std::vector<Entry*> chains_;
};

}  // namespace kesto
