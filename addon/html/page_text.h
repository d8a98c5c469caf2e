// The texts of the model as they stand in a page: prose (what authors wrote) and code
// (declarations), with links from the names of the project to their pages. All texts are
// Windows-1252. Appends to pages, keeps nothing of them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "addon/foundation/name_table.h"
#include "addon/html/ht_projet.h"

namespace kesto {

// Which words lead to a page. Refers to the names of the project, which must stay as it
// is meanwhile.
class WordLinks {
 public:
  explicit WordLinks(const htProjet& projet);

  // Appends the word: as a link, if it names something besides the entry. Classes come
  // before macros, macros before functions; of one name the first is meant.
  void appendWord(std::string& page, std::string_view word, const htSymbol* entry) const;

 private:
  struct Named {
    const htSymbol* of_class = nullptr;
    const htSymbol* of_macro = nullptr;
    const htSymbol* of_function = nullptr;
  };
  using Sort = const htSymbol* Named::*;

  template <class Table>
  void add(const Table& entries, Sort sort);

  NameTable<std::string_view, Named> named_;
};

// The long form sets return value and parameters off in paragraphs of their own.
enum class ProseForm { kShort, kLong };

// entry: whose text it is, and what it gets no links to; null for none.
void appendProse(std::string& page, std::string_view text, const WordLinks& links,
                 const htSymbol* entry, ProseForm form = ProseForm::kShort);
void appendCode(std::string& page, std::string_view text, const WordLinks& links,
                const htSymbol* entry);

inline void append(std::string& page, std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) {
    page += text;
  }
}

}  // namespace kesto
