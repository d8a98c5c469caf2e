// Message boxes of the code under test, kept instead of shown.
#pragma once

#include <string>
#include <vector>

struct RecordedBox {
  std::string text;
  std::string caption;
  unsigned flags;
};

extern std::vector<RecordedBox> recorded_boxes;
// How each is answered.
extern int box_answer;
