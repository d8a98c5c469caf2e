// What the completion key asks of the completion engine. The engine lives on
// the floor above and enters itself here; it stays its own owner. User-interface thread
// only.
#pragma once

#include <string>

namespace kesto {

struct CompletionAnswer {
  int result = 0;           // 0 no match, 1 a unique one, 2 several
  std::string text;         // what continues the word, may be empty
  std::string status;       // what the status line shows of the matches
  std::string description;  // of the matched entry, may be empty
};

class CompletionSource {
 public:
  virtual ~CompletionSource() = default;
  virtual CompletionAnswer complete(const char* prefix) = 0;
};

// Null while there is no engine: every word is then one without a match.
extern CompletionSource* completionSource;

}  // namespace kesto
