// Stands for message boxes in the tests: each is noted and answered with OK.
#pragma once

#include <string>
#include <vector>

namespace kesto {

struct RecordedBox {
  std::string text;
  std::string caption;
  unsigned flags;
};

// The boxes since the last call.
std::vector<RecordedBox> takeBoxes();

}  // namespace kesto
