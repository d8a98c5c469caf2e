// The window classes of the Workbench: their windows keep the object they belong
// to in their extra bytes. User-interface thread only.
#pragma once

#include <windows.h>

namespace workbench {

constexpr int kNoBackground = -1;

// `background` is one of the system's colours (COLOR_...) or `kNoBackground`.
WNDCLASSA windowClass(const char* name, WNDPROC procedure, HINSTANCE instance, int background);

// Registers a window class unless the program has it already.
bool registerOnce(const WNDCLASSA& info);

}  // namespace workbench
