// Where the add-on paints its three buttons into an editor's caption.
// User-interface thread only.
#pragma once

#include <windows.h>

namespace workbench {

enum class TitleSide { kLeft, kRight };

// The side that the add-on's stored settings name, left when they name none.
TitleSide storedTitleSide();
// The middle of button 0, 1 or 2, in screen coordinates.
POINT titleButtonCenter(HWND editor, int button, TitleSide side);
// Whether the editor's caption shows the pictures of the three buttons, which are in
// the add-on's module. What covers the caption hides them.
bool titleButtonsShow(HWND editor, HINSTANCE addon, TitleSide side);

}  // namespace workbench
