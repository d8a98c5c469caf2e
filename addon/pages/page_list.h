// List boxes on option pages: keys that a dialog would keep for itself, and how far the rows
// scroll sideways. User-interface thread.
#pragma once

#include <windows.h>

#include <string>

namespace kesto {

// What such a list tells its page of beside the system's own notifications.
inline constexpr int kListSpace = 0x1000;

// From now on Enter in the list tells of a double click (LBN_DBLCLK), and Space of kListSpace.
void takeListKeys(HWND list);
// The selected row, else the one with the focus mark; -1 when there is none.
int currentRow(HWND list);
// Empty when there is no such row.
std::string rowText(HWND list, int row);
// To be called when rows without tabs have come or changed.
void fitRowExtent(HWND list);

}  // namespace kesto
