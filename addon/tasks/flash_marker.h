// The day on which the flash of a project was shown last, in a file beside the project.
// Plain functions; any thread.
#pragma once

#include <string_view>

#include "addon/foundation/file_system.h"
#include "addon/foundation/string.h"

namespace kesto {

String flashMarkerPath(std::string_view project_file);
// Days as the user has them written. False as well when nothing can be read.
bool wasFlashShown(FileSystem& files, const char* marker, std::string_view day);
// What cannot be written is left.
void markFlashShown(FileSystem& files, const char* marker, std::string_view day);

}  // namespace kesto
