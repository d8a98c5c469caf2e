// What a title-bar menu shall hold, before it is a menu: the shell turns a plan
// into popups item by item. Texts belong to the list that the plan was made from
// and live as long as its entries.
#pragma once

#include <vector>

#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"
#include "addon/navigation/fnc.h"

namespace kesto {

inline constexpr int kFirstIncludeId = 700;
inline constexpr int kLastIncludeId = 799;
inline constexpr int kFirstFunctionId = 1000;
inline constexpr int kLastFunctionId = 9999;

struct MenuPlanItem {
  const char* text = "";
  int id = 0;  // 0 for a submenu
  bool column_break = false;
  bool enabled = true;
  std::vector<MenuPlanItem> submenu;
};

using MenuPlan = std::vector<MenuPlanItem>;

// In both plans the entries whose identifiers would be those of other commands can be
// seen and not chosen. What no menu has identifiers for is left out.
inline constexpr int kLastMenuId = 0xFFFE;

// column_size: items in a column; below 1 there is one endless column.
MenuPlan planFunctionsMenu(const Tableau<Fnc>& functions, int column_size);
MenuPlan planIncludesMenu(const Tableau<String>& includes);

}  // namespace kesto
