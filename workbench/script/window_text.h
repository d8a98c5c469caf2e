// Small questions about a window. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

// At most 79 characters of the class name; empty for a window that is gone.
std::string windowClass(HWND window);
// The whole text; empty for a window that is gone.
std::string windowText(HWND window);

}  // namespace workbench
