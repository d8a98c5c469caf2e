// What the completion key asks of the completion engine. The engine lives on
// the floor above and enters itself here; it stays its own owner. User-interface thread
// only.
#pragma once

#include <string>
#include <string_view>

namespace kesto {

// What a strike of the key comes to.
struct CompletionStep {
  std::string text;                                // to insert at the caret, may be empty
  std::string status = "No available completion";  // for the status line
};

class CompletionSource {
 public:
  virtual ~CompletionSource() = default;
  // The word before the caret: at most 99 characters, and not empty.
  virtual CompletionStep strike(std::string_view word) = 0;
};

// Null while nothing can complete: every word is then one without a match, and a key that
// writes an ordinary one.
extern CompletionSource* completionSource;

}  // namespace kesto
