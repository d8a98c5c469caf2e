// Section "Tasks" of the settings store, between it and the task list. User-interface
// thread only.
#pragma once

#include "addon/tasks/task_list.h"

namespace kesto {

void readTaskSettings(TaskList& list);
void writeTaskSettings(TaskList& list);

}  // namespace kesto
