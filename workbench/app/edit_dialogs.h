// The small dialogs of the Edit and Project menus. User-interface thread only;
// false when the user cancelled.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace workbench {

// *line comes in as the proposal, 1-based.
bool askLine(HWND owner, int last_line, int* line);
// Lets the user choose one of the files; names are shown from the folder on.
bool askProjectFile(HWND owner, const std::string& folder, const std::vector<std::string>& files,
                    std::string* path);

}  // namespace workbench
