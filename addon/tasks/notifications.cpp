#include "addon/tasks/notifications.h"

#include <string>

namespace kesto {

namespace {

// A line of the file ends as the system has it, so that what goes in has line feeds.
void appendLines(std::string& out, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!text.substr(i).starts_with("\r\n")) {
      out += text[i];
    }
  }
  out += '\n';
}

}  // namespace

String notificationPath(std::string_view project_file) {
  String path(project_file);
  path += ".tsk.txt";
  return path;
}

bool appendNotification(FileSystem& files, const char* path, const Task& task) {
  const std::string rule = std::string(70, '-') + '\n';
  std::string added;
  if (!files.status(path)) {
    added += rule + "  NOTIFICATIONS FOR ENDED TASKS\n";
  }
  added += rule + "*** Task : " + std::string(task.name.view()) + " ***\n";
  appendLines(added, task.text.view());
  return files.append(path, added);
}

}  // namespace kesto
