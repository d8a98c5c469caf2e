// Where dialogs come up. User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

// In the middle of its owner, or of the screen when that is minimised or there is none.
void centreOnOwner(HWND dialog);

}  // namespace kesto
