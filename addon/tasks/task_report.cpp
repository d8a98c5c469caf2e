// The task list's report of what is due today.
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

// What is not due has no place in the order: it need not be sorted.
void TaskList::dueTasks(Tableau<Task>& due, const TaskDate& today) const {
  due.setOwns(false);
  due.clear();
  for (int i = 0; i < count(); ++i) {
    if (settings.flash[at(i)->state].value != 0 && isDue(*at(i), today)) {
      due.append(at(i));
    }
  }
  sortTasks(due, order, reverse != 0);
}

int TaskList::todayReport(String& out, const TaskDate& today, const DateFormat& format) const {
  Tableau<Task> due;
  dueTasks(due, today);
  // No text takes more.
  std::string report;
  for (int i = 0; i < due.count() && report.size() < String::kMaxLength; ++i) {
    appendDue(report, *due[i], format);
  }
  out += std::string_view(report);
  const bool has_text = !out.empty();
  out += has_text ? "That's all folks !" : "No task today !";
  return has_text ? 1 : 0;
}

}  // namespace kesto
