#include "addon/tasks/task.h"

#include <string>

#include "addon/foundation/binary_form.h"

namespace kesto {

namespace {

constexpr std::int32_t kVersion = 0;
constexpr const char* kStateWords[2][kTaskStates] = {{"to do", "coded", "tested", "ended"},
                                                     {"TO DO", "CODED", "TESTED", "ENDED"}};
constexpr std::uint16_t TaskDate::*kDateWords[] = {
    &TaskDate::year, &TaskDate::month,  &TaskDate::day_of_week, &TaskDate::day,
    &TaskDate::hour, &TaskDate::minute, &TaskDate::second,      &TaskDate::milliseconds};

int writeDate(FILE* file, const TaskDate& date) {
  for (const auto word : kDateWords) {
    if (!writeUint16(file, date.*word)) {
      return 0;
    }
  }
  return 1;
}

int readDate(FILE* file, TaskDate& date) {
  for (const auto word : kDateWords) {
    if (!readUint16(file, &(date.*word))) {
      return 0;
    }
  }
  return 1;
}

}  // namespace

Task::Task(const TaskDate& now)
    : name("New task"), type("Bug"), start(now), end(now), text("Something to do") {}

void Task::appendRow(String& out, const DateFormat& format) const {
  std::string row(name.view());
  for (const std::string& column :
       {std::string(type.view()), std::string(taskStateWord(state, is_public != 0)),
        std::to_string(priority), format.shortDate(start), format.shortDate(end)}) {
    row += '\t';
    row += column;
  }
  out += std::string_view(row);
}

// The public flag stands twice in a record.
int Task::fWrite(FILE* file) const {
  return writeInt32(file, kVersion) && name.fWrite(file) && type.fWrite(file) &&
         writeInt32(file, state) && writeInt32(file, is_public) && writeInt32(file, is_public) &&
         writeInt32(file, priority) && writeDate(file, start) && writeDate(file, end) &&
         text.fWrite(file);
}

int Task::fRead(FILE* file) {
  std::int32_t version = 0;
  if (!readInt32(file, &version) || version != kVersion) {
    return 0;
  }
  const int read = name.fRead(file) && type.fRead(file) && readInt32(file, &state) &&
                   readInt32(file, &is_public) && readInt32(file, &is_public) &&
                   readInt32(file, &priority) && readDate(file, start) && readDate(file, end) &&
                   text.fRead(file);
  if (state < 0 || state >= kTaskStates) {
    state = kToDo;
  }
  return read;
}

const char* taskStateWord(int state, bool capitals) {
  return kStateWords[capitals ? 1 : 0][state];
}

}  // namespace kesto
