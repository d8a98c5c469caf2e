// The project that is open in the IDE, as the searches need it. What is
// returned is the caller's copy. User-interface thread only.
#pragma once

#include <string>

#include "ideapi/ide_interfaces.h"

namespace kesto {

// True while a project is loaded.
bool isProjectOpen();
// The folder of the project file, else the current directory; no trailing separator.
std::string projectDirectory();
// The node of the file, or the project's top node when the file is not in it;
// 0 when no project is open.
ProjectNode nodeOfFile(const char* file);

}  // namespace kesto
