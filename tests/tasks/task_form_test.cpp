// What the edit area of the task list shows and takes, and how wide the rows above it are.
#include <array>
#include <string>

#include "addon/ide/row_extent.h"
#include "addon/tasks/known_dates.h"
#include "addon/tasks/task_form.h"
#include "doctest.h"
#include "tests/tasks/played_days.h"

namespace kesto {

TEST_CASE("what is as it was shown stays, what a person changed is taken") {
  const std::string long_name(200, 'n');
  const std::string long_text(3000, 't');
  const TypedDates dates = {true, day(2026, 8, 24)};
  Task task(day(2026, 1, 2));
  task.name = long_name.c_str();
  task.type = long_name.c_str();
  task.text = long_text.c_str();
  task.priority = -1;
  task.is_public = 7;
  const TaskForm shown = formOf(task, DottedDays());
  CHECK(shown.priority == 4294967295U);
  takeForm(task, shown, shown, dates);
  CHECK(task.name == long_name.c_str());
  CHECK(task.type == long_name.c_str());
  CHECK(task.text == long_text.c_str());
  CHECK(task.start == day(2026, 1, 2));
  CHECK(task.priority == -1);
  CHECK(task.is_public == 7);

  const TaskForm typed = {"a" + long_name, "b" + long_name, "1/2/03", "",
                          "c" + long_text, kTested,         12,       false};
  takeForm(task, shown, typed, dates);
  CHECK(task.name == ("a" + std::string(78, 'n')).c_str());
  CHECK(task.type == ("b" + std::string(78, 'n')).c_str());
  CHECK(task.text == ("c" + std::string(1021, 't')).c_str());
  CHECK(task.start == day(1903, 2, 1));
  CHECK(task.end == day(2026, 8, 24));
  CHECK(task.state == kTested);
  CHECK(task.priority == 12);
  CHECK(task.is_public == 0);
}

TEST_CASE("a day is asked for once, until it may be written another way") {
  class Counted : public DottedDays {
   public:
    std::string shortDate(const TaskDate& date) const override {
      ++asked;
      return DottedDays::shortDate(date);
    }
    mutable int asked = 0;
  };
  Counted counted;
  KnownDates known(counted);
  TaskDate later = day(1996, 2, 29);
  later.hour = 5;
  CHECK(known.shortDate(day(1996, 2, 29)) == "29.2.1996");
  CHECK(known.shortDate(later) == "29.2.1996");
  CHECK(counted.asked == 1);
  known.forget();
  CHECK(known.shortDate(later) == "29.2.1996");
  CHECK(counted.asked == 2);
  // Far more days than are remembered at once, some of them none of the calendar.
  for (int year : {0, 1995, 1996, 60000, 65535}) {
    for (int month = 0; month < 60; ++month) {
      for (int of_month = 0; of_month < 40; ++of_month) {
        const TaskDate date = day(year, month, of_month);
        REQUIRE(known.shortDate(date) == DottedDays().shortDate(date));
      }
    }
  }
}

TEST_CASE("a tab goes on at the next stop behind the text before it") {
  RowMetrics metrics = {};
  metrics.widths.fill(5);
  metrics.widths['i'] = 2;
  metrics.widths[0xE9] = 7;
  const int stops[] = {20, 30};
  metrics.stops = stops;
  metrics.further = 8;
  const struct {
    const char* row;
    int extent;
  } rows[] = {{"", 0},         {"aib", 12},  {"\xE9", 7},       {"a\tb", 25},    {"aaa\ta", 25},
              {"aaaa\ta", 35}, {"\t\t", 30}, {"a\taaa\ta", 45}, {"\t\t\ta", 37}, {"\t\taa\ta", 53}};
  for (const auto& row : rows) {
    CAPTURE(std::string(row.row));
    CHECK(rowExtent(row.row, metrics) == row.extent);
  }
  metrics.further = 0;
  CHECK(rowExtent("\t\t\ta", metrics) == 35);
}

}  // namespace kesto
