#include "addon/tasks/task_columns.h"

#include <string>

#include "addon/tasks/task_ids.h"

namespace kesto {

namespace {

// Of type, state, priority, start and end.
constexpr int kStops[] = {147, 249, 286, 309, 327};

}  // namespace

void TaskColumns::setUp(HWND dialog, const DateFormat& format) {
  const std::string day = format.shortDate({2000, 12, 0, 22, 0, 0, 0, 0});
  const std::string dates = "\t\t\t\t" + day + "\t" + day;
  rows_.setUp(GetDlgItem(dialog, TASKS_LIST), kStops, dates);
  std::string beginning;
  for (int heading = TASKS_HEADING_FIRST; heading < TASKS_HEADING_LAST; ++heading) {
    rows_.placeHeading(heading, beginning);
    beginning += '\t';
  }
  // The last column begins behind the start date, wherever that ends.
  rows_.placeHeading(TASKS_HEADING_LAST, dates.substr(0, dates.rfind('\t') + 1));
}

}  // namespace kesto
