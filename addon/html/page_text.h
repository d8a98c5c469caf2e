// The texts of the model as they stand in a page: prose (what authors wrote) and code
// (declarations), with links from the names of the project to their pages. All texts are
// Windows-1252. Appends to pages, keeps nothing of them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>

#include "addon/html/ht_projet.h"

namespace kesto {

// Which words lead to a page. Refers to the names of the project, which must stay as it
// is meanwhile.
class WordLinks {
 public:
  explicit WordLinks(const htProjet& projet);

  // The start of a link to the page of the word, up to the word in the page's name;
  // empty when the word has none. Classes come before macros, macros before functions.
  std::string_view find(std::string_view word) const;
  // What follows the word in the page's name.
  static std::string_view afterWord(std::string_view link);

 private:
  std::unordered_map<std::string_view, std::string_view> starts_;
};

// The long form sets return value and parameters off in paragraphs of their own.
enum class ProseForm { kShort, kLong };

// The entry whose text it is gets no links to itself: it is the name to leave out.
void appendProse(std::string& page, std::string_view text, const WordLinks& links,
                 std::string_view entry, ProseForm form = ProseForm::kShort);
void appendCode(std::string& page, std::string_view text, const WordLinks& links,
                std::string_view entry);

inline void append(std::string& page, std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) {
    page += text;
  }
}

}  // namespace kesto
