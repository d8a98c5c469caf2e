// Entries by name, in order of creation. Refers to entries and to their names, which
// must outlive it and stay as they are. Neither adding nor finding takes longer the more
// entries there are, be it of one name.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include "addon/foundation/name_table.h"

namespace kesto {

class htSymbol;

// Which entries of a name will do.
enum class EntryKind {
  kDeclaration,    // those without a declaration
  kDocumentation,  // those without documentation
  kBothEmpty,      // those with neither
  kAny,
};

class NameIndex {
 public:
  // The first entry of the name that suits the kind; null when there is none. Entries
  // must never lose what they once had.
  htSymbol* find(std::string_view name, EntryKind kind);
  // Gives the entry its number.
  void add(htSymbol& entry);
  bool holds(const htSymbol& entry) const;

 private:
  struct SameName {
    std::vector<htSymbol*> entries;
    // By kind: no earlier entry suits it, nor ever will.
    std::array<std::size_t, 4> first{};
  };

  NameTable<std::string_view, SameName> names_;
};

}  // namespace kesto
