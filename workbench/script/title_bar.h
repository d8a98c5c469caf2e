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

}  // namespace workbench
