// What completes a word: the rules by which keywords answer to it, and what one strike of
// the completion key after the other does. Plain, one user.
#pragma once

#include <string>
#include <string_view>

#include "addon/completion/keyword_list.h"
#include "addon/ide/completion_source.h"

namespace kesto {

// Characters of a status text at most.
inline constexpr std::size_t kStatusTextLimit = 1023;

struct CompletionAnswer {
  int result = 0;      // 0 no match, 1 a unique one, 2 several
  std::string text;    // what continues the word, may be empty
  std::string status;  // what the status line shows of the matches; empty without any
};

class Completion {
 public:
  // Forgets the last match.
  void load(FileSystem& files, const Tableau<String>& paths);

  const KeywordList& keywords() const { return keywords_; }
  CompletionAnswer complete(std::string_view prefix);
  // The position of the latest match, -1 when there was none.
  int lastMatch() const { return last_match_; }

  // What the key does to the word before the caret.
  CompletionStep strike(std::string_view word);

 private:
  KeywordList keywords_;
  int last_match_ = -1;
  std::string shown_description_;
};

// A format text as it comes out without arguments: "%%" is "%", any other "%" stands for
// itself.
std::string formattedAlone(std::string_view format);

}  // namespace kesto
