// The notifications of ended public tasks, which wait beside the project for its next
// delivery. Plain functions; user-interface thread.
#pragma once

#include <string_view>

#include "addon/foundation/file_system.h"
#include "addon/foundation/string.h"
#include "addon/tasks/task.h"

namespace kesto {

// Where those of a project are kept.
String notificationPath(std::string_view project_file);

// Appends that the task has ended, under a header when the file is new. False when it
// could not be written.
bool appendNotification(FileSystem& files, const char* path, const Task& task);

}  // namespace kesto
