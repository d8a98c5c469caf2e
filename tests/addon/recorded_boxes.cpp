#include "tests/addon/recorded_boxes.h"

#include "addon/foundation/message_box.h"

std::vector<RecordedBox> recorded_boxes;
int box_answer = kesto::kAnswerOk;

namespace kesto {

int showMessage(void*, const char* text, const char* caption, unsigned flags) {
  recorded_boxes.push_back({text, caption, flags});
  return box_answer;
}

}  // namespace kesto
