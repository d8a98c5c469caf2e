// The system's dialogs for files and folders. User-interface thread only; false
// when the user cancelled.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

bool askOpenName(HWND owner, const std::string& folder, std::string* path);
// *path comes in as the proposal.
bool askSaveName(HWND owner, std::string* path);
bool askFolder(HWND owner, std::string* path);

}  // namespace workbench
