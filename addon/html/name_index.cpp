#include "addon/html/name_index.h"

#include "addon/html/ht_symbol.h"

namespace kesto {

namespace {

bool suits(const htSymbol& entry, EntryKind kind) {
  switch (kind) {
    case EntryKind::kDeclaration:
      return !entry.hasDeclaration();
    case EntryKind::kDocumentation:
      return !entry.hasDocumentation();
    case EntryKind::kBothEmpty:
      return !entry.hasDeclaration() && !entry.hasDocumentation();
    case EntryKind::kAny:
      break;
  }
  return true;
}

}  // namespace

htSymbol* NameIndex::find(std::string_view name, EntryKind kind) {
  SameName* const found = names_.find(name);
  if (found == nullptr) {
    return nullptr;
  }
  const std::vector<htSymbol*>& entries = found->entries;
  std::size_t& first = found->first[static_cast<std::size_t>(kind)];
  while (first < entries.size() && !suits(*entries[first], kind)) {
    ++first;
  }
  return first < entries.size() ? entries[first] : nullptr;
}

void NameIndex::add(htSymbol& entry) {
  std::vector<htSymbol*>& entries = names_[entry.name.view()].entries;
  entry.number = static_cast<int>(entries.size());
  entries.push_back(&entry);
}

bool NameIndex::holds(const htSymbol& entry) const {
  const SameName* const found = names_.find(entry.name.view());
  if (found == nullptr) {
    return false;
  }
  const auto number = static_cast<std::size_t>(entry.number);
  return number < found->entries.size() && found->entries[number] == &entry;
}

}  // namespace kesto
