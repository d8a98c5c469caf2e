#include "addon/navigation/menu_plan.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace kesto {

namespace {

// Of an item that can never be chosen.
constexpr int kRestId = 0xFFFE;

void appendItem(MenuPlan& menu, MenuPlanItem item, int column_size) {
  const int items = static_cast<int>(menu.size());
  item.column_break = column_size > 0 && items > 0 && items % column_size == 0;
  menu.push_back(std::move(item));
}

MenuPlanItem command(const char* text, int id, int last_id) {
  return {text, id, false, id <= last_id, {}};
}

// Tells of the entries that are not shown, when there are such.
void appendRest(MenuPlan& menu, int rest, int column_size) {
  if (rest > 0) {
    appendItem(menu, {"... and " + std::to_string(rest) + " more", kRestId, false, false, {}},
               column_size);
  }
}

int shownEntries(int count, int first_id, int last_id) {
  return std::min(count, last_id - first_id + 1 + kMostDisabledItems);
}

}  // namespace

MenuPlan planFunctionsMenu(const Tableau<Fnc>& functions, int column_size) {
  MenuPlan menu;
  MenuPlan submenu;
  const char* open_class = "";
  const auto close_submenu = [&] {
    if (!submenu.empty()) {
      appendItem(menu, {open_class, 0, false, true, std::move(submenu)}, column_size);
      submenu.clear();
    }
  };
  const int count = shownEntries(functions.count(), kFirstFunctionId, kLastFunctionId);
  for (int i = 0; i < count; ++i) {
    const Fnc& entry = *functions.at(i);
    if (strcmp(entry.className(), open_class) != 0) {
      close_submenu();
      open_class = entry.className();
    }
    appendItem(*open_class != '\0' ? submenu : menu,
               command(entry.name(), kFirstFunctionId + i, kLastFunctionId), column_size);
  }
  close_submenu();
  appendRest(menu, functions.count() - count, column_size);
  return menu;
}

MenuPlan planIncludesMenu(const Tableau<String>& includes) {
  MenuPlan menu;
  const int count = shownEntries(includes.count(), kFirstIncludeId, kLastIncludeId);
  for (int i = 0; i < count; ++i) {
    menu.push_back(command(includes.at(i)->text(), kFirstIncludeId + i, kLastIncludeId));
  }
  appendRest(menu, includes.count() - count, 0);
  return menu;
}

}  // namespace kesto
