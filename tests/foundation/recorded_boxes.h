// Message boxes of the code under test, kept instead of shown.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kesto {

struct RecordedBox {
  std::string text;
  std::string caption;
  unsigned flags;
};

extern std::vector<RecordedBox> recorded_boxes;
// How each is answered; OK unless a test says otherwise.
extern int box_answer;
// What goes on while one is up; nothing unless a test says otherwise.
extern std::function<void()> while_box;

// The boxes since the last call.
std::vector<RecordedBox> takeBoxes();

}  // namespace kesto
