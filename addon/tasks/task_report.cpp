// The task list's report of what is due today.
#include <algorithm>
#include <string>

#include "addon/tasks/task_list.h"

namespace kesto {

namespace {

bool isDue(const Task& task, const TaskDate& today) {
  return isNotAfterInYear(task.start, today) && isNotAfterInYear(today, task.end);
}

void appendDue(std::string& report, const Task& task, const DateFormat& format) {
  report += task.name.view();
  report += " (" + format.shortDate(task.start) + " to " + format.shortDate(task.end) + ")\r\n";
  report += "Type : ";
  report += task.type.view();
  report += ", Priority : " + std::to_string(task.priority);
  report += ", State : ";
  report += taskStateWord(task.state);
  report += "\r\n";
  report += task.text.view();
  report += "\r\n" + std::string(58, '-') + "\r\n";
}

}  // namespace

int TaskList::todayReport(String& out, const TaskDate& today, const DateFormat& format) {
  std::int32_t shown[kTaskStates];
  std::copy(std::begin(show), std::end(show), shown);
  std::copy(std::begin(settings.flash), std::end(settings.flash), show);
  rebuildView();
  // No text takes more.
  std::string report;
  for (int i = 0; i < view_.count() && report.size() < String::kMaxLength; ++i) {
    if (isDue(*view_[i], today)) {
      appendDue(report, *view_[i], format);
    }
  }
  out += std::string_view(report);
  const bool due = !out.empty();
  out += due ? "That's all folks !" : "No task today !";
  std::copy(std::begin(shown), std::end(shown), show);
  rebuildView();
  return due ? 1 : 0;
}

}  // namespace kesto
