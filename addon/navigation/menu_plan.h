// What a title-bar menu shall hold, before it is a menu: the shell turns a plan
// into popups item by item.
#pragma once

#include <string>
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
  std::string text;
  int id = 0;  // 0 for a submenu
  bool column_break = false;
  bool enabled = true;
  std::vector<MenuPlanItem> submenu;
};

using MenuPlan = std::vector<MenuPlanItem>;

// In both plans the entries whose identifiers would be those of other commands can be
// seen and not chosen; of these, no more than a menu stays quick with, and then their number.
inline constexpr int kMostDisabledItems = 1000;

// column_size: items in a column; below 1 there is one endless column.
MenuPlan planFunctionsMenu(const Tableau<Fnc>& functions, int column_size);
MenuPlan planIncludesMenu(const Tableau<String>& includes);

}  // namespace kesto
