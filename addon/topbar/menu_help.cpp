#include "addon/topbar/menu_help.h"

namespace kesto {
namespace {

constexpr HelpTopic kNoTopic = {};

struct MenuTopics {
  int first;
  int last;
  HelpTopic item;  // kNoTopic: that of the menu that it is in
  HelpTopic menu;  // of the menu that its first command is in this range
};

constexpr MenuTopics kTopics[] = {
    {171, 171, kHelpTaskList, kHelpMenuTasks},
    {173, 173, kHelpFlash, kHelpMenuTasks},
    {175, 175, kHelpGroupwareGet, kHelpMenuGroupware},
    {176, 176, kHelpGroupwareSend, kHelpMenuGroupware},
    // Of a title bar; the groupware menu has the same number, further down.
    {177, 177, kNoTopic, kHelpMenuDocumentation},
    {190, 190, kHelpFindFunction, kHelpMenuQuickFind},
    {191, 191, kHelpFindMethod, kHelpMenuQuickFind},
    {192, 192, kHelpFindClass, kHelpMenuQuickFind},
    {193, 193, kHelpCrossReference, kHelpMenuQuickFind},
    {194, 195, kHelpDocumentation, kHelpMenuHtml},
    {196, 196, kHelpContents, kHelpMenuKesto},
    {199, 199, kHelpPageKesto, kHelpMenuKesto},
    {200, 399, kNoTopic, kHelpMenuKesto},
    {400, 599, kNoTopic, kHelpMenuLastIncludes},
    {700, 799, kNoTopic, kHelpMenuIncludes},
    {800, 899, kNoTopic, kHelpMenuMethods},
    {1000, 9999, kNoTopic, kHelpMenuFunctions},
    {10000, 19999, kNoTopic, kHelpMenuProject},
};

HelpTopic noted = kHelpTopBar;

const MenuTopics* topicsOf(UINT id) {
  for (const MenuTopics& topics : kTopics) {
    if (id >= static_cast<UINT>(topics.first) && id <= static_cast<UINT>(topics.last)) {
      return &topics;
    }
  }
  return nullptr;
}

// A menu of nothing but submenus is about what these are about. As deep as menus nest.
HelpTopic topicOfMenu(HMENU menu) {
  const int items = GetMenuItemCount(menu);
  for (int i = 0; i < items; ++i) {
    if (const MenuTopics* topics = topicsOf(GetMenuItemID(menu, i))) {
      return topics->menu;
    }
  }
  for (int i = 0; i < items; ++i) {
    if (const HMENU submenu = GetSubMenu(menu, i)) {
      return topicOfMenu(submenu);
    }
  }
  return kHelpTopBar;
}

}  // namespace

void noteMenuOpened(HMENU popup) {
  noted = topicOfMenu(popup);
}

void noteMenuSelection(WPARAM wParam, LPARAM lParam) {
  const auto menu = reinterpret_cast<HMENU>(lParam);
  const UINT item = LOWORD(wParam);
  if (menu == nullptr) {
    noted = kHelpTopBar;
  } else if ((HIWORD(wParam) & MF_POPUP) != 0) {
    noted = topicOfMenu(GetSubMenu(menu, static_cast<int>(item)));
  } else {
    const MenuTopics* topics = topicsOf(item);
    noted = topics != nullptr && topics->item != kNoTopic ? topics->item : topicOfMenu(menu);
  }
}

HelpTopic menuHelpTopic() {
  return noted;
}

}  // namespace kesto
