#include "addon/tasks/task.h"

#include <charconv>
#include <iterator>
#include <string_view>

#include "addon/foundation/binary_form.h"

namespace kesto {

namespace {

constexpr std::int32_t kVersion = 0;
constexpr const char* kStateWords[2][kTaskStates] = {{"to do", "coded", "tested", "ended"},
                                                     {"TO DO", "CODED", "TESTED", "ENDED"}};
constexpr std::uint16_t TaskDate::*kDateWords[] = {
    &TaskDate::year, &TaskDate::month,  &TaskDate::day_of_week, &TaskDate::day,
    &TaskDate::hour, &TaskDate::minute, &TaskDate::second,      &TaskDate::milliseconds};

// What stands between the texts of a record, as its bytes are.
class NumberBlock {
 public:
  static constexpr std::size_t kSize = 4 * 4 + 2 * 16;

  void put(std::uint32_t value, int size) {
    for (; size > 0; --size, value >>= 8) {
      bytes_[at_++] = static_cast<unsigned char>(value);
    }
  }
  void put(const TaskDate& date) {
    for (const auto word : kDateWords) {
      put(date.*word, 2);
    }
  }
  std::uint32_t take(int size) {
    std::uint32_t value = 0;
    for (int i = 0; i < size; ++i) {
      value |= std::uint32_t{bytes_[at_++]} << (8 * i);
    }
    return value;
  }
  std::int32_t takeNumber() { return static_cast<std::int32_t>(take(4)); }
  void take(TaskDate& date) {
    for (const auto word : kDateWords) {
      date.*word = static_cast<std::uint16_t>(take(2));
    }
  }
  int write(FILE* file) const { return fwrite(bytes_, kSize, 1, file) == 1; }
  int read(FILE* file) { return fread(bytes_, 1, kSize, file) == kSize; }

 private:
  unsigned char bytes_[kSize] = {};
  std::size_t at_ = 0;
};

}  // namespace

Task::Task(const TaskDate& now)
    : name("New task"), type("Bug"), priority(10), start(now), end(now), text("Something to do") {}

void Task::appendRow(std::string& out, const DateFormat& format) const {
  char number[12];
  const auto digits = std::to_chars(std::begin(number), std::end(number), priority);
  out += name.view();
  out += '\t';
  out += type.view();
  out += '\t';
  out += taskStateWord(state, is_public != 0);
  out += '\t';
  out.append(number, digits.ptr);
  out += '\t';
  out += format.shortDate(start);
  out += '\t';
  out += format.shortDate(end);
}

// The public flag stands twice in a record; the second one counts.
int Task::writeNumbers(FILE* file) const {
  NumberBlock block;
  for (const std::int32_t number : {state, is_public, is_public, priority}) {
    block.put(static_cast<std::uint32_t>(number), 4);
  }
  block.put(start);
  block.put(end);
  return block.write(file);
}

int Task::readNumbers(FILE* file) {
  NumberBlock block;
  if (!block.read(file)) {
    return 0;
  }
  state = block.takeNumber();
  if (state < 0 || state >= kTaskStates) {
    state = kToDo;
  }
  for (std::int32_t* number : {&is_public, &is_public, &priority}) {
    *number = block.takeNumber();
  }
  block.take(start);
  block.take(end);
  return 1;
}

int Task::fWrite(FILE* file) const {
  return writeInt32(file, kVersion) && name.fWrite(file) && type.fWrite(file) &&
         writeNumbers(file) && text.fWrite(file);
}

int Task::fRead(FILE* file) {
  std::int32_t version = 0;
  return readInt32(file, &version) && version == kVersion && name.fRead(file) && type.fRead(file) &&
         readNumbers(file) && text.fRead(file);
}

const char* taskStateWord(int state, bool capitals) {
  return kStateWords[capitals ? 1 : 0][state];
}

}  // namespace kesto
