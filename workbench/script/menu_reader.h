// Menus as a script sees them: their items, and the way to one of them.
// User-interface thread only; nothing is owned.
#pragma once

#include <windows.h>

#include <set>
#include <string>
#include <vector>

#include "workbench/events/event.h"

namespace workbench {

struct MenuItem {
  UINT id = 0;  // 0 for a popup
  std::string text;
  bool separator = false;
  bool column_break = false;
  bool enabled = true;
  bool highlighted = false;
  HMENU popup = nullptr;
};

// Returns false for a position that the menu does not have.
bool readMenuItem(HMENU menu, int position, MenuItem* item);
// The "menu" event: all items of the menu and of its popups, in the order in
// which they show, a popup's own items after it and one deeper.
Event menuEvent(HMENU menu);
// Adds the menu and every popup below it.
void addPopups(HMENU menu, std::set<HMENU>* popups);

// Positions from a menu down to one of its entries; empty when there is none.
using MenuPath = std::vector<int>;
MenuPath findById(HMENU menu, UINT id);
// By texts such as {"File", "Open*"}, compared without "&" and what follows a tab.
// An entry below a popup that is not filled yet cannot be found: the path then
// ends at the popup and *whole is false.
MenuPath findByTexts(HMENU menu, const std::vector<std::string>& texts, bool* whole);
// The position of the highlighted entry, or -1.
int highlighted(HMENU menu);

}  // namespace workbench
