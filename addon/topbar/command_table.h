// The command centre: every command that reaches the bar, by ranges of ids, and
// who carries it out. User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

// Carries the command out. Returns false when nobody does; the window's default
// processing is due then.
bool dispatchCommand(HWND bar, int id, LPARAM lParam);

// Shows what a highlighted menu item would do; flags are the menu's MF_ values.
void showCommandStatus(int id, unsigned flags);

}  // namespace kesto
