#include "addon/navigation/prompt_history.h"

#include <algorithm>

namespace kesto {

void PromptHistory::enter(std::string_view text) {
  std::string entered(text);
  const auto equal = std::find(texts_.begin(), texts_.end(), entered);
  if (equal != texts_.end()) {
    texts_.erase(equal);
  } else if (texts_.size() == kSize) {
    texts_.pop_back();
  }
  texts_.insert(texts_.begin(), std::move(entered));
}

}  // namespace kesto
