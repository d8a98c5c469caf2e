// The texts entered at the prompt of the searches, the most recent first. Kept for
// the session, not stored.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kesto {

class PromptHistory {
 public:
  static constexpr int kSize = 20;

  // Puts the text first. An equal one leaves its place, else the oldest goes when
  // there are kSize.
  void enter(std::string_view text);
  const std::vector<std::string>& texts() const { return texts_; }

 private:
  std::vector<std::string> texts_;
};

}  // namespace kesto
