// Turns a menu plan into a popup. User-interface thread only.
#pragma once

#include <windows.h>

#include "addon/navigation/menu_plan.h"

namespace kesto {

// The caller destroys the popup, its submenus with it. Null when none could be created.
HMENU createPopup(const MenuPlan& plan);

}  // namespace kesto
