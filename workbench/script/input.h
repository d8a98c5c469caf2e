// Real keyboard and mouse input, which passes through the thread's hooks.
// User-interface thread only.
#pragma once

#include <windows.h>

#include "workbench/script/key_name.h"

namespace workbench {

enum class MouseButton { kLeft, kRight };

// What the thread takes for the state of Alt. As a key it would close an open menu.
void holdAlt(bool down);
// Modifiers down, key down and up, modifiers up.
void pressKey(const KeyStroke& stroke);
// Moves the pointer. Returns whether it was there already: motion that is still
// under way could carry a click elsewhere.
bool pointerRests(POINT screen);
// Presses and releases there, with the stroke's modifiers held.
void clickMouse(POINT screen, MouseButton button, const KeyStroke& held = {});

}  // namespace workbench
