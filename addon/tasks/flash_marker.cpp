#include "addon/tasks/flash_marker.h"

#include <string>

namespace kesto {

String flashMarkerPath(std::string_view project_file) {
  String path(project_file);
  path += ".fltme";
  return path;
}

bool wasFlashShown(FileSystem& files, const char* marker, std::string_view day) {
  std::string text;
  return files.read(marker, text) && std::string_view(text).substr(0, text.find('\n')) == day;
}

void markFlashShown(FileSystem& files, const char* marker, std::string_view day) {
  files.write(marker, std::string(day) + '\n');
}

}  // namespace kesto
