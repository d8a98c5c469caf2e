// Task files: what the list holds after any of them, and what it writes of that.
// fuzz: -max_len=2048 -malloc_limit_mb=1
#include <algorithm>
#include <cstring>
#include <string>

#include "addon/tasks/task_list.h"
#include "fuzz/fuzz.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

namespace {

constexpr char kPath[] = "app.ide.tsk";

// Records in memory: many a second come to no disk.
class Disk : public PlayedDisk {
 public:
  bool writeRecord(const char* path, const Basic& record) override {
    char* block = nullptr;
    std::size_t size = 0;
    FILE* const file = open_memstream(&block, &size);
    const bool written = record.fWrite(file) != 0;
    fclose(file);
    const bool put = written && write(path, std::string_view(block, size));
    free(block);
    return put;
  }
  bool readRecord(const char* path, Basic& record) override {
    std::string copy = files[path].text;
    FILE* const file = fmemopen(copy.data(), copy.size(), "rb");
    const bool read = record.fRead(file) != 0;
    fclose(file);
    return read;
  }
};

class OddDates : public DateFormat {
 public:
  std::string shortDate(const TaskDate& date) const override {
    return date.month < 1 || date.month > 12 ? "" : std::to_string(date.month);
  }
};

void checkView(TaskList& list) {
  int shown = 0;
  for (int i = 0; i < list.count(); ++i) {
    FUZZ_CHECK(list[i]->state >= 0 && list[i]->state < kTaskStates);
    shown += list.show[list[i]->state] != 0 ? 1 : 0;
  }
  FUZZ_CHECK(list.view().count() == shown);
  // From the one end as from the other, as far as the first word of each order goes.
  for (list.order = 0; list.order < kTaskOrders; ++list.order) {
    list.rebuildView();
    for (int i = 1; i < shown; ++i) {
      const Task& one = *list.view()[list.reverse != 0 ? i : i - 1];
      const Task& next = *list.view()[list.reverse != 0 ? i - 1 : i];
      const bool ordered[] = {one.state <= next.state, compareDays(one.start, next.start) <= 0,
                              compareDays(one.end, next.end) <= 0, one.priority <= next.priority,
                              strcmp(one.type.text(), next.type.text()) <= 0};
      FUZZ_CHECK(ordered[list.order]);
    }
  }
}

void checkReport(const TaskList& list, std::string_view bytes) {
  TaskDate today;
  today.month = static_cast<std::uint8_t>(bytes.empty() ? 0 : bytes[0]) % 14;
  today.day = 15;
  String report;
  const int due = list.todayReport(report, today, OddDates());
  FUZZ_CHECK(report.length() == static_cast<int>(String::kMaxLength) ||
             report.view().ends_with(due != 0 ? "That's all folks !" : "No task today !"));
}

void checkTypes(TaskList& list) {
  const String joined = list.joinedTypes();
  FUZZ_CHECK(joined.view().size() <= TaskSettings::kTypesLimit);
  list.setTypes(joined.view());
  const String again = list.joinedTypes();
  const bool ends_empty = joined.view().ends_with(';');
  FUZZ_CHECK(again.view() == joined.view().substr(0, joined.view().size() - (ends_empty ? 1 : 0)));
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  const std::string_view bytes = inputText(data, size);
  Disk disk;
  disk.put(kPath, std::string(bytes));
  TaskList list(disk);
  list.setPath(kPath);
  list.load();
  const auto most = static_cast<std::size_t>(Task::kSmallestRecord);
  FUZZ_CHECK(static_cast<std::size_t>(list.count()) * most <= size);
  FUZZ_CHECK(list.order >= 0 && list.order < kTaskOrders);
  FUZZ_CHECK(disk.files[kPath].text == bytes);
  // What was not read whole is kept; all else is written in the same length, and read again
  // as it is.
  list.save();
  const std::string written = disk.files[kPath].text;
  const bool kept = disk.files.size() == 2;
  FUZZ_CHECK(kept ? disk.files[std::string(kPath) + ".bak"].text == bytes : written.size() == size);
  TaskList again(disk);
  again.setPath(kPath);
  again.load();
  again.save();
  FUZZ_CHECK(again.count() == list.count() && disk.files[kPath].text == written);
  FUZZ_CHECK(disk.files.size() == (kept ? 2 : 1));
  checkReport(list, bytes);
  checkView(list);
  checkTypes(list);
  return 0;
}
