// The project that is open in the IDE. The project client fills the slots.
// User-interface thread only.
#pragma once

#include <string>

#include "ideapi/ide_interfaces.h"

namespace kesto {

// True from the end of a successful opening to the project's closing.
bool isProjectOpen();
void setProjectOpen(bool open);
// Full path of the project file that was opened last.
const std::string& projectFile();
void setProjectFile(std::string file);
// The name of that file without its folder and its extension, which has three letters.
std::string projectName();

// The folder of the open project's file, else the current directory; no trailing
// separator.
std::string projectDirectory();
// The node of the file, or the project's top node when the file is not in it;
// 0 when no project is open.
ProjectNode nodeOfFile(const char* file);

}  // namespace kesto
