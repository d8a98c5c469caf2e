// The bar window, class "KADO": a menu bar over the screen's top edge, and the
// window that owns every popup of the add-on. The lifecycle destroys it. User-interface
// thread only.
#pragma once

#include <windows.h>

namespace kesto {

inline constexpr char kBarClass[] = "KADO";

void registerBarClass(HINSTANCE instance);
void unregisterBarClass(HINSTANCE instance);

// Creates the bar, hidden, with its start-up menu. Null on failure.
HWND createBarWindow(HINSTANCE instance, bool new_shell);

}  // namespace kesto
