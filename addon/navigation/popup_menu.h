// Popups of the title bars: made from a plan, and tracked. User-interface thread only.
#pragma once

#include <windows.h>

#include "addon/navigation/menu_plan.h"

namespace kesto {

// The caller destroys the popup, its submenus with it. Null when none could be created.
HMENU createPopup(const MenuPlan& plan);

// Shows the popup at a place of the screen until something is chosen or it is left, and
// destroys it. What is chosen reaches the owner as a command. The IDE may have closed
// meanwhile, and with it all that was there before.
void trackPopup(HWND owner, HMENU popup, POINT place);

}  // namespace kesto
