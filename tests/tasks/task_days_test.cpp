// What is typed for a date, and the two files beside a project that tell of days and ends.
#include <string>

#include "addon/tasks/flash_marker.h"
#include "addon/tasks/notifications.h"
#include "addon/tasks/task_date.h"
#include "doctest.h"
#include "tests/foundation/played_disk.h"
#include "tests/tasks/played_days.h"

namespace kesto {

TEST_CASE("a typed date is read in the user's order, and what is missing is today's") {
  class MonthFirst : public DateFormat {
    std::string shortDate(const TaskDate& date) const override {
      return std::to_string(date.month) + '/' + std::to_string(date.day) + "/96";
    }
  };
  CHECK(isDayFirst(DottedDays()));
  CHECK_FALSE(isDayFirst(MonthFirst()));

  TaskDate now = day(2026, 8, 24);
  now.day_of_week = 1;
  now.milliseconds = 999;
  const struct {
    std::string text;
    TaskDate day_first;
    TaskDate month_first;
  } typed[] = {
      {"12/11/95", day(1995, 11, 12), day(1995, 12, 11)},
      {"12/11/1995", day(1995, 11, 12), day(1995, 12, 11)},
      {"1/1/2001", day(1901, 1, 1), day(1901, 1, 1)},
      {" 3/ +4/ 7 junk", day(1907, 4, 3), day(1907, 3, 4)},
      {"31/13/0", day(1900, 13, 31), day(1900, 31, 13)},
      {"5/6", day(2026, 6, 5), day(2026, 5, 6)},
      {"5/6/", day(2026, 6, 5), day(2026, 5, 6)},
      {"5", day(2026, 8, 5), day(2026, 5, 24)},
      {"5 /6/95", day(2026, 8, 5), day(2026, 5, 24)},
      {"5.6.95", day(2026, 8, 5), day(2026, 5, 24)},
      {"", now, now},
      {"-", now, now},
      {"/6/95", now, now},
      {"-1/70000/-5", day(1895, 4464, 65535), day(1895, 65535, 4464)},
      {"99999999999/1/95", day(1995, 1, 65535), day(1995, 65535, 1)},
      {std::string(77, ' ') + "1/2/95", day(2026, 8, 1), day(2026, 1, 24)},
  };
  for (const auto& date : typed) {
    CAPTURE(date.text);
    for (const bool first : {true, false}) {
      TaskDate expected = first ? date.day_first : date.month_first;
      expected.day_of_week = 1;
      expected.milliseconds = 999;
      CHECK(readTypedDate(date.text, first, now) == expected);
    }
  }
}

TEST_CASE("the flash was shown when its marker's whole line is today") {
  PlayedDisk disk;
  const String marker = flashMarkerPath("C:\\P\\app.ide");
  CHECK(marker.view() == "C:\\P\\app.ide.fltme");
  CHECK_FALSE(wasFlashShown(disk, marker, "6. 7. 2026"));
  markFlashShown(disk, marker, "5. 7. 2026");
  markFlashShown(disk, marker, "6. 7. 2026");
  CHECK(disk.texts()[marker.text()] == "6. 7. 2026\n");
  CHECK(wasFlashShown(disk, marker, "6. 7. 2026"));
  for (const char* other : {"6.", "6. 7. 2027", "6. 7. 2026 ", ""}) {
    CHECK_FALSE(wasFlashShown(disk, marker, other));
  }
}

TEST_CASE("ended tasks are noted one below the other, under one header") {
  PlayedDisk disk;
  const String path = notificationPath("C:\\P\\app.ide");
  CHECK(path.view() == "C:\\P\\app.ide.tsk.txt");
  Task task;
  task.name = "Print";
  task.text = "first\r\n\r\nthird\rline\nlast\r\n";
  CHECK(appendNotification(disk, path, task));
  task.text = "";
  CHECK(appendNotification(disk, path, task));
  // The file system makes the system's line ends of line feeds.
  const std::string rule = std::string(70, '-') + "\n";
  CHECK(disk.texts()[path.text()] == rule + "  NOTIFICATIONS FOR ENDED TASKS\n" + rule +
                                         "*** Task : Print ***\nfirst\n\nthird\rline\nlast\n\n" +
                                         rule + "*** Task : Print ***\n\n");
  disk.locked = ".tsk.txt";
  CHECK_FALSE(appendNotification(disk, path, task));
}

}  // namespace kesto
