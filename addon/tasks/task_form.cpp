#include "addon/tasks/task_form.h"

#include <string_view>

namespace kesto {

namespace {

void takeText(String& text, const std::string& shown, const std::string& typed, int limit) {
  if (typed != shown) {
    text = std::string_view(typed).substr(0, static_cast<std::size_t>(limit));
  }
}

void takeDate(TaskDate& date, const std::string& shown, const std::string& typed,
              const TypedDates& dates) {
  if (typed != shown) {
    date = readTypedDate(typed, dates.day_first, dates.now);
  }
}

}  // namespace

TaskForm formOf(const Task& task, const DateFormat& format) {
  return {std::string(task.name.view()),
          std::string(task.type.view()),
          format.shortDate(task.start),
          format.shortDate(task.end),
          std::string(task.text.view()),
          task.state,
          static_cast<std::uint32_t>(task.priority),
          task.is_public != 0};
}

void takeForm(Task& task, const TaskForm& shown, const TaskForm& typed, const TypedDates& dates) {
  takeText(task.name, shown.name, typed.name, kTaskNameLimit);
  takeText(task.type, shown.type, typed.type, kTaskNameLimit);
  takeText(task.text, shown.text, typed.text, kTaskTextLimit);
  takeDate(task.start, shown.start, typed.start, dates);
  takeDate(task.end, shown.end, typed.end, dates);
  task.state = typed.state;
  task.priority = static_cast<std::int32_t>(typed.priority);
  if (typed.is_public != shown.is_public) {
    task.is_public = typed.is_public ? 1 : 0;
  }
}

std::string endOfTaskSubject(const Task& task, const std::string& project) {
  return "End of task \"" + std::string(task.name.view()) + "\" (project " + project + ")";
}

}  // namespace kesto
