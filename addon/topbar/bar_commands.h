// The commands of the bar's own menus and of the hooks that concern it, and what the
// status line says of their items.
#pragma once

#include <windows.h>

#include <string>

namespace kesto {

// A new editor: its file is recorded, and the editor closed when another shows it.
void onEditorCreated(HWND editor);

// Position within the range of the command.
void switchToProject(int position);
void openRecentHeader(int position);
void runExecutable(int position);
// Opens the file or, by the keys that are held, offers more: Alt what it includes,
// Ctrl its removal from the project, both the IDE's other way of opening.
void chooseProjectFile(int position);

// Paths of the recent lists, empty out of range.
std::string recentProjectPath(int position);
std::string recentHeaderPath(int position);
std::string executableName(int position);
std::string projectFileName(int position);

}  // namespace kesto
