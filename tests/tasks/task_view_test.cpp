// The view of a task list, the types, and the report of a day.
#include <climits>
#include <functional>
#include <map>
#include <string>

#include "addon/tasks/task_list.h"
#include "doctest.h"
#include "tests/foundation/played_disk.h"
#include "tests/tasks/played_days.h"

namespace kesto {

namespace {

// A lower or a higher value of what the letter stands for.
void set(Task& task, char key, bool high) {
  const std::map<char, std::function<void()>> values = {
      {'s', [&] { task.state = high ? kEnded : kTested; }},
      {'b', [&] { task.start = high ? day(1996, 1, 1) : day(1995, 12, 31); }},
      {'e', [&] { task.end = high ? day(1996, 2, 1) : day(1996, 1, 31); }},
      {'p', [&] { task.priority = high ? 1 : INT_MIN; }},
      {'t', [&] { task.type = high ? "\xE9" : "z"; }},
      {'n', [&] { task.name = high ? "a" : "B"; }}};
  values.at(key)();
}

std::string report(TaskList& list, const TaskDate& today, int due) {
  String out;
  CHECK(list.todayReport(out, today, DottedDays()) == due);
  return std::string(out.view());
}

}  // namespace

TEST_CASE("each order compares its keys one after the other") {
  const std::string orders[kTaskOrders] = {"sbeptn", "bseptn", "esbptn", "psbetn", "tsbepn"};
  for (int order = 0; order < kTaskOrders; ++order) {
    for (std::size_t deciding = 0; deciding < 6; ++deciding) {
      PlayedDisk disk;
      TaskList list(disk);
      auto* const later = new Task(TaskDate{});
      auto* const sooner = new Task(TaskDate{});
      list.append(later);
      list.append(sooner);
      const std::string& keys = orders[static_cast<std::size_t>(order)];
      for (std::size_t i = 0; i < 6; ++i) {
        set(*sooner, keys[i], i > deciding);
        set(*later, keys[i], i == deciding);
      }
      list.order = order;
      list.rebuildView();
      CAPTURE(keys[deciding]);
      CHECK(list.view()[0] == sooner);
      list.reverse = 2;
      list.rebuildView();
      CHECK(list.view()[0] == later);
    }
  }
}

TEST_CASE("the types stand in one text with semicolons, cut at 511 characters") {
  PlayedDisk disk;
  TaskList list(disk);
  list.setTypes("a;b c;;d;");
  CHECK(list.types.count() == 4);
  CHECK(list.joinedTypes().view() == "a;b c;;d");
  list.types.append(new String(std::string_view(std::string(510, 'x'))));
  CHECK(list.joinedTypes().view() == "a;b c;;d;" + std::string(502, 'x'));
}

TEST_CASE("the report has what goes on today, whatever the year") {
  PlayedDisk disk;
  TaskList list(disk);
  const auto add = [&](const char* name, int priority, TaskDate start, TaskDate end) {
    list.append(new Task(start));
    Task& task = *list[list.count() - 1];
    task.name = name;
    task.priority = priority;
    task.end = end;
    return &task;
  };
  CHECK(report(list, day(1996, 5, 15), 0) == "No task today !");
  Task* const may = add("May", 1, day(1995, 5, 1), day(1995, 5, 31));
  add("Turn", 2, day(1995, 12, 30), day(1996, 1, 2));
  add("Day", 3, day(2030, 5, 15), day(2030, 5, 15));
  may->text = "two\r\nlines";
  may->is_public = 1;
  list.order = 3;
  list.reverse = 1;
  list.show[kToDo] = 0;

  const std::string rule = "\r\n" + std::string(58, '-') + "\r\n";
  const std::string of_may = "May (1.5.1995 to 31.5.1995)\r\nType : Bug, Priority : 1, State : " +
                             std::string("to do\r\ntwo\r\nlines") + rule;
  const std::string of_day = "Day (15.5.2030 to 15.5.2030)\r\nType : Bug, Priority : 3, State : " +
                             std::string("to do\r\nSomething to do") + rule;
  const std::string end = "That's all folks !";
  CHECK(report(list, day(1996, 5, 15), 1) == of_day + of_may + end);
  CHECK(list.view().count() == 0);
  CHECK(report(list, day(2000, 5, 1), 1) == of_may + end);
  CHECK(report(list, day(1990, 5, 31), 1) == of_may + end);
  for (const TaskDate& today :
       {day(1995, 4, 30), day(1995, 6, 1), day(1995, 12, 31), day(1996, 1, 1), day(1995, 12, 30)}) {
    CHECK(report(list, today, 0) == "No task today !");
  }
  may->state = kEnded;
  CHECK(report(list, day(1995, 5, 2), 0) == "No task today !");
  list.settings.flash[kEnded].value = 1;
  CHECK(report(list, day(1995, 5, 2), 1).find(", State : ended\r\n") != std::string::npos);

  String out("Today: ");
  CHECK(list.todayReport(out, day(1995, 6, 1), DottedDays()) == 1);
  CHECK(out.view() == "Today: That's all folks !");
  may->text = std::string_view(std::string(65535, 'x'));
  out = "";
  CHECK(list.todayReport(out, day(1995, 5, 2), DottedDays()) == 1);
  CHECK(out.length() == 65535);
}

}  // namespace kesto
