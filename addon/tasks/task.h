// One task of a project. The task list owns it; user-interface thread only.
#pragma once

#include <cstdint>
#include <string>

#include "addon/foundation/string.h"
#include "addon/tasks/task_date.h"

namespace kesto {

enum TaskState : std::int32_t { kToDo, kCoded, kTested, kEnded };
inline constexpr int kTaskStates = 4;

class Task : public Basic {
 public:
  // Bytes of the shortest file form: five numbers, two dates and three empty texts.
  static constexpr long kSmallestRecord = 5 * 4 + 2 * 16 + 3 * String::kSmallestRecord;

  // An empty one, to be read.
  Task() = default;
  // A new task, of one day.
  explicit Task(const TaskDate& now);

  // Appends the row of the task list: name, type, state, priority and both dates, with
  // tabs in between.
  void appendRow(std::string& out, const DateFormat& format) const;

  // The record of a task file. A failed read leaves what arrived. A state that there is
  // not is read as "to do".
  int fWrite(FILE* file) const override;
  int fRead(FILE* file) override;

  String name;
  String type;
  std::int32_t state = kToDo;
  std::int32_t is_public = 0;  // not 0: its end is told to others
  std::int32_t priority = 0;
  TaskDate start;
  TaskDate end;
  String text;  // lines end with CR LF

 private:
  int writeNumbers(FILE* file) const;
  int readNumbers(FILE* file);
};

// In small letters, or in capitals as for a public task; of a state from 0 to 3.
const char* taskStateWord(int state, bool capitals = false);

}  // namespace kesto
