// The edit area of the task list as values: what its fields show of a task, and what a
// person who changed some of them means. Plain; any thread.
#pragma once

#include <string>

#include "addon/tasks/task.h"

namespace kesto {

// Characters that the fields take at most.
inline constexpr int kTaskNameLimit = 79;  // of name and type
inline constexpr int kTaskTextLimit = 1022;

// The texts are those of the fields.
struct TaskForm {
  std::string name;
  std::string type;
  std::string start;
  std::string end;
  std::string text;
  int state = kToDo;
  std::uint32_t priority = 0;
  bool is_public = false;
};

TaskForm formOf(const Task& task, const DateFormat& format);

// What the typed dates are to be read with.
struct TypedDates {
  bool day_first;
  TaskDate now;
};

// Puts into the task what is in the fields by now. A text that is as it was shown leaves its
// part of the task as it is: shown may be less than what the task holds.
void takeForm(Task& task, const TaskForm& shown, const TaskForm& typed, const TypedDates& dates);

// Subject of the mail about the end of a public task.
std::string endOfTaskSubject(const Task& task, const std::string& project);

}  // namespace kesto
