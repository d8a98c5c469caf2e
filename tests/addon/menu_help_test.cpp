// The help topics of menus, by what the system tells of them while they are open.
#include "addon/topbar/menu_help.h"

#include <initializer_list>

#include "doctest.h"

using namespace kesto;

namespace {

// 0 is a separator.
HMENU menuOf(std::initializer_list<UINT> ids) {
  const HMENU menu = CreatePopupMenu();
  for (const UINT id : ids) {
    AppendMenuA(menu, id == 0 ? MF_SEPARATOR : MF_STRING, id, "item");
  }
  return menu;
}

HMENU menuOf(std::initializer_list<HMENU> submenus) {
  const HMENU menu = CreatePopupMenu();
  for (const HMENU submenu : submenus) {
    AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(submenu), "submenu");
  }
  return menu;
}

HelpTopic opened(HMENU menu) {
  noteMenuOpened(menu);
  return menuHelpTopic();
}

HelpTopic selected(HMENU menu, UINT item, UINT flags = 0) {
  noteMenuSelection(MAKEWPARAM(item, flags | MF_HILITE), reinterpret_cast<LPARAM>(menu));
  return menuHelpTopic();
}

}  // namespace

TEST_CASE("F1 is about the highlighted entry, else about the menu that has opened") {
  const HMENU groupware = menuOf({175, 176, 0, 177, 178, 0, 174});
  const HMENU tasks = menuOf({171, 173});
  const HMENU main = menuOf({400, 401});
  const HMENU bar = menuOf({main, groupware, tasks, menuOf({menuOf({10000, 10001})}),
                            menuOf(std::initializer_list<UINT>{})});
  CHECK(opened(groupware) == kHelpMenuGroupware);
  CHECK(selected(groupware, 175) == kHelpGroupwareGet);
  CHECK(selected(groupware, 176) == kHelpGroupwareSend);
  // The number of "Edit Documentation" too, and two that the table does not have.
  for (const UINT id : {177U, 178U, 174U}) {
    CHECK(selected(groupware, id) == kHelpMenuGroupware);
  }
  CHECK(selected(bar, 2, MF_POPUP) == kHelpMenuTasks);
  CHECK(selected(tasks, 173) == kHelpFlash);
  CHECK(selected(bar, 3, MF_POPUP) == kHelpMenuProject);
  CHECK(selected(bar, 4, MF_POPUP) == kHelpTopBar);
  CHECK(opened(menuOf({200, 300, 0, 199, 196})) == kHelpMenuKesto);
  CHECK(opened(main) == kHelpMenuLastIncludes);
  CHECK(opened(menuOf({177})) == kHelpMenuDocumentation);
  CHECK(opened(menuOf({menuOf({1003})})) == kHelpMenuFunctions);
  CHECK(selected(menuOf({801}), 801) == kHelpMenuMethods);
  // A menu that has closed leaves nothing behind.
  noteMenuSelection(MAKEWPARAM(0, 0xFFFF), 0);
  CHECK(menuHelpTopic() == kHelpTopBar);
  DestroyMenu(bar);
}
