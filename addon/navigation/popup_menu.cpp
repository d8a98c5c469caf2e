#include "addon/navigation/popup_menu.h"

namespace kesto {

HMENU createPopup(const MenuPlan& plan) {
  const HMENU popup = CreatePopupMenu();
  for (const MenuPlanItem& item : plan) {
    const UINT flags = MF_STRING | (item.column_break ? MF_MENUBARBREAK : 0U);
    if (item.id != 0) {
      AppendMenuA(popup, flags, static_cast<UINT_PTR>(item.id), item.text);
      continue;
    }
    // Only a submenu that was taken goes with its popup.
    const HMENU submenu = createPopup(item.submenu);
    if (AppendMenuA(popup, flags | MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), item.text) == 0) {
      DestroyMenu(submenu);
    }
  }
  return popup;
}

}  // namespace kesto
