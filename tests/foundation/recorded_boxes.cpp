#include "tests/foundation/recorded_boxes.h"

#include <utility>

#include "addon/foundation/message_box.h"

namespace kesto {

namespace {

std::vector<RecordedBox> boxes;

}  // namespace

int showMessage(void* /*owner*/, const char* text, const char* caption, unsigned flags) {
  boxes.push_back({text, caption, flags});
  return kAnswerOk;
}

std::vector<RecordedBox> takeBoxes() {
  return std::exchange(boxes, {});
}

}  // namespace kesto
