// Another name for a file while it is open, which saves finding and opening it once more.
// Any thread.
#pragma once

#include <windows.h>

namespace kesto {

// What a file must be opened with besides for that; 0 where the system has no such step.
DWORD renamingAccess();

// The path is a whole one. False when it is not done: the system has no such step, or
// something stands there, which a file may only do where it is to be replaced.
bool renameOpenFile(HANDLE file, const char* new_path, bool replace);

}  // namespace kesto
