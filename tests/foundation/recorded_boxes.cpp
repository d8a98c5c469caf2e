#include "tests/foundation/recorded_boxes.h"

#include <utility>

#include "addon/foundation/message_box.h"

namespace kesto {

std::vector<RecordedBox> recorded_boxes;
int box_answer = kAnswerOk;
std::function<void()> while_box;

int showMessage(void* /*owner*/, const char* text, const char* caption, unsigned flags) {
  recorded_boxes.push_back({text, caption, flags});
  if (while_box) {
    while_box();
  }
  return box_answer;
}

std::vector<RecordedBox> takeBoxes() {
  return std::exchange(recorded_boxes, {});
}

}  // namespace kesto
