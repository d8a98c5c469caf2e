// tasks_bench DIRECTORY   makes a task file of 10,000 tasks there, and prints its size and
//                         the best times of the work on it in milliseconds; a name and a
//                         number each
//
// "read" merely reads the file; "work" loads it, sorts its view and makes the report
// of a day. The sorts are of orders that sorting may be slow with.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "addon/foundation/message_box.h"
#include "addon/tasks/task_list.h"
#include "bench/turns.h"
#include "cli/posix/disk_files.h"

namespace kesto {

int showMessage(void* /*owner*/, const char* text, const char* /*caption*/, unsigned /*flags*/) {
  fprintf(stderr, "%s\n", text);
  return kAnswerOk;
}

namespace {

constexpr int kTasks = 10000;
constexpr int kRounds = 60;

class PlainDates : public DateFormat {
 public:
  std::string shortDate(const TaskDate& date) const override {
    char text[32];
    snprintf(text, sizeof text, "%d/%d/%d", date.month, date.day, date.year);
    return text;
  }
};

unsigned scattered(unsigned number) {
  return number * 2654435761U >> 12;
}

Task* makeTask(int number) {
  constexpr const char* kTypes[] = {"Design", "Evolution", "Bug", "Documentation"};
  const unsigned any = scattered(static_cast<unsigned>(number));
  TaskDate start;
  start.year = static_cast<std::uint16_t>(1995 + any % 5);
  start.month = static_cast<std::uint16_t>(1 + any % 12);
  start.day = static_cast<std::uint16_t>(1 + any % 28);
  auto* const task = new Task(start);
  task->name = "Task " + std::to_string(number) + " of the project";
  task->type = kTypes[any % 4];
  task->state = static_cast<std::int32_t>(any / 8 % kTaskStates);
  task->priority = static_cast<std::int32_t>(any % 100);
  task->end.day = 28;
  task->text = std::string(any % 600, 'x') + "\r\nand what there is to say of it";
  return task;
}

std::size_t read(const char* path) {
  FILE* const file = fopen(path, "rb");
  std::string bytes;
  fseek(file, 0, SEEK_END);
  bytes.resize(static_cast<std::size_t>(ftell(file)));
  rewind(file);
  const std::size_t size = fread(bytes.data(), 1, bytes.size(), file);
  fclose(file);
  return size;
}

// A sort of the number of each task, by its priority.
void addSort(Turns& turns, TaskList& list, const char* name,
             const std::function<int(int)>& number) {
  turns.add(
      name, [&list] { list.rebuildView(); },
      [&list, number] {
        for (int i = 0; i < list.count(); ++i) {
          list[i]->priority = number(i);
        }
        list.order = 3;
      });
}

int measure(const std::string& directory) {
  const std::string path = directory + "/bench.ide.tsk";
  cli::DiskNames names;
  cli::DiskFiles files(names);
  TaskList list(files);
  for (int i = 0; i < kTasks; ++i) {
    list.append(makeTask(i));
  }
  list.setPath(path);
  list.save();

  TaskDate today;
  today.month = 6;
  today.day = 15;
  std::size_t bytes = 0;
  std::unique_ptr<TaskList> loaded;
  const auto fresh = [&] {
    loaded = std::make_unique<TaskList>(files);
    loaded->setPath(path);
  };
  const auto report = [&] {
    String text;
    loaded->todayReport(text, today, PlainDates());
  };
  Turns turns;
  turns.add("read", [&] { bytes = read(path.c_str()); });
  turns.add(
      "load", [&] { loaded->load(); }, fresh);
  turns.add("sort", [&] { loaded->rebuildView(); });
  turns.add("report", report);
  turns.add(
      "work",
      [&] {
        loaded->load();
        report();
      },
      fresh);
  addSort(turns, list, "sort-any", [](int i) { return static_cast<int>(scattered(i)); });
  addSort(turns, list, "sort-sorted", [](int i) { return i; });
  addSort(turns, list, "sort-turned", [](int i) { return -i; });
  addSort(turns, list, "sort-equal", [](int) { return 1; });
  addSort(turns, list, "sort-hill", [](int i) { return std::min(i, kTasks - i); });
  addSort(turns, list, "sort-saw", [](int i) { return i % 100; });
  turns.run(kRounds);
  printf("tasks %d\nbytes %zu\n", loaded->count(), bytes);
  return loaded->count() == kTasks ? 0 : 1;
}

}  // namespace

}  // namespace kesto

int main(int count, char** arguments) {
  return count == 2 ? kesto::measure(arguments[1]) : 1;
}
