#include "addon/navigation/menu_plan.h"

#include <string>

#include "addon/navigation/source_scanner.h"
#include "doctest.h"

namespace kesto {

namespace {

// "|" starts a column; a submenu shows its items in braces.
std::string shown(const MenuPlan& plan) {
  std::string all;
  for (const MenuPlanItem& item : plan) {
    all += item.column_break ? "|" : "";
    all += item.text;
    if (!item.submenu.empty()) {
      all.append("{").append(shown(item.submenu)).append("}");
    } else {
      all += '=';
    }
    all += std::to_string(item.id);
    all += ' ';
  }
  return all;
}

std::string planned(const char* source, int column_size) {
  Tableau<Fnc> functions;
  scanFunctions(source, functions);
  return shown(planFunctionsMenu(functions, column_size));
}

}  // namespace

TEST_CASE("methods of one class share a submenu while they are adjacent") {
  CHECK(planned("a()\nA::x()\nA::y()\nB::x()\nb()\nA::z()", 50) ==
        "a=1000 A{x=1001 y=1002 }0 B{x=1003 }0 b=1004 A{z=1005 }0 ");
  CHECK(planned("A::x()\nA::y()\na()\n", 50) == "A{x=1000 y=1001 }0 a=1002 ");
  CHECK(planned("", 50).empty());
}

TEST_CASE("each popup starts a column after a full one") {
  CHECK(planned("a()\nb()\nA::x()\nA::y()\nA::z()\nc()\nB::x()\nd()", 2) ==
        "a=1000 b=1001 |A{x=1002 y=1003 |z=1004 }0 c=1005 |B{x=1006 }0 d=1007 ");
  CHECK(planned("a()\nb()\nc()\n", 1) == "a=1000 |b=1001 |c=1002 ");
  // A size no settings page lets through makes one column.
  CHECK(planned("a()\nb()\n", 0) == "a=1000 b=1001 ");
}

TEST_CASE("what is too much for a menu is told at its end") {
  Tableau<String> includes;
  while (includes.count() < 5000) {
    includes.append(new String("x.h"));
  }
  const MenuPlan many = planIncludesMenu(includes);
  REQUIRE(many.size() == 1101);
  CHECK(many[1100].text == "... and 3900 more");
  CHECK_FALSE(many[1100].enabled);
}

}  // namespace kesto
