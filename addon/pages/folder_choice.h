// Asks for a folder: with the system's tree of them where it has one, else by its name.
// User-interface thread.
#pragma once

#include <windows.h>

#include <string>

namespace kesto {

// The full path of the chosen folder, or a name as typed; empty when the user cancelled. The
// tree opens at current, which may be relative to the project's directory, and is that
// directory while it is empty; chosen again, current comes back as it was. The IDE may have
// closed meanwhile, and control, for whose dialog it is asked, be gone.
std::string chooseFolder(HWND control, const char* title, const std::string& current);

}  // namespace kesto
