// Finding the IDE's windows, which stay the IDE's. User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

// The first descendant of the parent, in enumeration order, of that class
// (exactly; null: any) and showing that file (null: any). The title text is in
// upper case; it must be the window title's file name or path, that is stand at
// its start or after a "\" or "/" and be followed by the end or ":". Null when
// nothing matches.
HWND findChildWindow(HWND parent, const char* class_name, const char* title);

// The frame of the IDE that the add-on runs in, or null.
HWND findFrame();
// The frame's document area, or null.
HWND findMdiClient();
// The editor in front of all documents; null when another kind of window is.
HWND findActiveEditor();

// Whether commands may be carried out: no modal dialog of the IDE is open.
bool isIdeFree();

bool isWindowOfClass(HWND window, const char* class_name);
// Brings the frame forward and gives it the keyboard.
void activateFrame();

}  // namespace kesto
