#include "addon/navigation/popup_menu.h"

#include "addon/foundation/menu_text.h"
#include "addon/ide/hook_set.h"

namespace kesto {

HMENU createPopup(const MenuPlan& plan) {
  const HMENU popup = CreatePopupMenu();
  for (const MenuPlanItem& item : plan) {
    const UINT flags = MF_STRING | (item.column_break ? MF_MENUBARBREAK : 0U) |
                       (item.enabled ? MF_ENABLED : MF_GRAYED);
    const std::string text = menuText(item.text);
    if (item.id != 0) {
      AppendMenuA(popup, flags, static_cast<UINT_PTR>(item.id), text.c_str());
      continue;
    }
    // Only a submenu that was taken goes with its popup.
    const HMENU submenu = createPopup(item.submenu);
    if (AppendMenuA(popup, flags | MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), text.c_str()) ==
        0) {
      DestroyMenu(submenu);
    }
  }
  return popup;
}

void trackPopup(HWND owner, HMENU popup, POINT place) {
  const bool suspended = hookSet != nullptr && hookSet->suspended();
  if (hookSet != nullptr) {
    hookSet->suspend(true);
  }
  TrackPopupMenu(popup, TPM_LEFTALIGN, place.x, place.y, 0, owner, nullptr);
  if (hookSet != nullptr) {
    hookSet->suspend(suspended);
  }
  DestroyMenu(popup);
}

}  // namespace kesto
