// The system's dialogs for files and folders. User-interface thread only; false
// when the user cancelled.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace workbench {

bool askOpenName(HWND owner, const std::string& folder, std::string* path);
// Several files of one folder: programs and libraries when targets are asked for, else sources;
// the others can be had as well.
bool askOpenNames(HWND owner, const std::string& folder, bool targets,
                  std::vector<std::string>* paths);
// *path comes in as the proposal.
bool askSaveName(HWND owner, std::string* path);
bool askFolder(HWND owner, const char* prompt, std::string* path);

}  // namespace workbench
