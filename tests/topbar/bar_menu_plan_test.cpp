#include "addon/topbar/bar_menu_plan.h"

#include <algorithm>

#include "doctest.h"
#include "tests/ide/outline.h"

namespace {

// A menu as text: "id text", "-" for a separator, "title{...}" for a popup, "/" before
// what starts a column.
std::string shown(const kesto::BarMenuPlan& plan, int popup = 0) {
  std::string text;
  for (const kesto::BarItem& item : plan.popups[static_cast<size_t>(popup)].items) {
    text += text.empty() ? "" : ",";
    text += item.column_break ? "/" : "";
    switch (item.kind) {
      case kesto::BarItem::Kind::kSeparator:
        text += '-';
        break;
      case kesto::BarItem::Kind::kCommand:
        text += std::to_string(item.id) + ' ' + item.text;
        break;
      case kesto::BarItem::Kind::kPopup:
        text += item.text + '{' + shown(plan, item.popup) + '}';
        break;
    }
  }
  return text;
}

kesto::BarMenuPlan planned(const Outline& tree, int construction, int column_size = 50) {
  kesto::BarMenuContent content;
  content.tree = &tree;
  content.construction = construction;
  content.column_size = column_size;
  return kesto::planBarMenu(content);
}

const char kTail[] = "-,199 Options...,196 Help...";
const char kTasks[] = "-,Tasks{171 Manage...,173 Flash...},";

// What follows the recent projects and the tools when a project is open.
std::string rest() {
  return std::string("Last Includes{},") + kTasks + kTail;
}

}  // namespace

TEST_CASE("the bar without a project") {
  kesto::RecentList projects(50, 10);
  kesto::RecentList headers(199, 50);
  kesto::BarMenuContent content;
  content.projects = &projects;
  content.headers = &headers;
  content.groupware_active = true;
  content.html_active = true;
  CHECK(shown(planBarMenu(content)) == std::string("Kesto{Last Includes{},") + kTail + "}");
  projects.assign({"C:\\p\\one.ide", "D:/two.ide"});
  headers.assign({"C:\\p\\a.h"});
  CHECK(shown(planBarMenu(content)) ==
        std::string("Kesto{200 one.ide,201 two.ide,-,Last Includes{400 a.h},") + kTail + "}");
  // Features of an open project.
  const Outline empty({});
  content.tree = &empty;
  CHECK(shown(planBarMenu(content)) ==
        std::string("Kesto{200 one.ide,201 two.ide,-,Last Includes{400 a.h},") +
            "-,Tasks{171 Manage...,173 Flash...},Groupware{175 Get...,176 Send...,-,"
            "177 Report...,178 Server report...,-,174 Mail...},HTML{194 Generate,195 Run}," +
            kTail + "}");
}

TEST_CASE("both constructions of one project") {
  const Outline tree({{0, "C:\\p\\prog.exe", ".exe"},
                      {1, "C:\\p\\main.cpp", ".cpp"},
                      {1, "C:\\p\\core.lib", ".Lib"},
                      {2, "C:\\p\\core.cpp", ".cpp"},
                      {2, "C:\\p\\core.obj", ".OBJ"},
                      {1, "C:\\p\\prog.rc", ".rc"},
                      {1, "#hidden", "Folder"},
                      {2, "C:\\p\\inside.cpp", ".cpp"},
                      {0, "docs", "Folder"},
                      {1, "empty", "Folder"},
                      {0, "C:\\p\\tool.exe", ".EXE"},
                      {0, "C:\\p\\old.lib", ".lib"},
                      {0, "C:\\p\\plug.dll", ".dll"},
                      {0, "C:\\p\\readme.txt", ".txt"}});
  const std::string main = "Kesto{300 run prog.exe,301 run tool.exe,-," + rest() + "}";
  const kesto::BarMenuPlan linear = planned(tree, 0);
  CHECK(shown(linear) ==
        main + ",prog.exe{10000 main.cpp,10002 prog.rc},core.lib{10001 core.cpp},10003 readme.txt");
  CHECK(linear.tools == std::vector<unsigned>{1, 11});
  CHECK(linear.targets.size() == 2);
  const kesto::BarMenuPlan nested = planned(tree, 1);
  CHECK(shown(nested) == main +
                             ",prog.exe{10000 main.cpp,core.lib{10001 core.cpp},10002 "
                             "prog.rc},10003 plug.dll,10004 readme.txt");
  REQUIRE(nested.files.size() == 5);
  CHECK(nested.files[1].node == 4);
  CHECK(nested.targets.size() == 2);
  // No menu, and what stands for an open project view.
  for (const int construction : {2, 50, 51, 52, -1}) {
    CHECK(shown(planned(tree, construction)) == "Kesto{" + rest() + "}");
  }
}

TEST_CASE("columns break at every multiple of the menu size") {
  std::vector<Row> rows = {{0, "t.dll", ".dll"}};
  for (int i = 0; i < 120; ++i) {
    rows.push_back({1, "f.c", ".c"});
  }
  for (const int construction : {0, 1}) {
    const kesto::BarMenuPlan plan = planned(Outline(rows), construction);
    std::vector<int> breaks;
    const auto& items = plan.popups[static_cast<size_t>(plan.targets.at(0).popup)].items;
    for (int i = 0; i < static_cast<int>(items.size()); ++i) {
      if (items[static_cast<size_t>(i)].column_break) {
        breaks.push_back(i);
      }
    }
    CHECK(items.size() == 120);
    CHECK(breaks == std::vector<int>{50, 100});
    for (const int endless : {0, -7}) {
      CHECK(shown(planned(Outline(rows), construction, endless)).find('/') == std::string::npos);
    }
  }
}

TEST_CASE("recent files beyond their ids are left out") {
  kesto::RecentList list(300, 300);
  list.assign(std::vector<std::string>(300, "x"));
  kesto::BarMenuContent content;
  content.projects = content.headers = &list;
  const kesto::BarMenuPlan plan = planBarMenu(content);
  CHECK(plan.popups[1].items[99].id == 299);
  CHECK(plan.popups[1].items[100].kind == kesto::BarItem::Kind::kSeparator);
  CHECK(plan.popups[2].items.size() == 200);
}

TEST_CASE("wide and deep projects end where the ids do") {
  std::vector<Row> wide;
  std::vector<Row> deep;
  for (int i = 0; i < 20000; ++i) {
    wide.push_back({0, "f.c", ".c"});
    deep.push_back({i, "t.exe", ".exe"});
  }
  deep.push_back({20000, "bottom.c", ".c"});
  for (const int construction : {0, 1}) {
    const kesto::BarMenuPlan plan = planned(Outline(wide), construction);
    CHECK(plan.files.size() == 10000);
    CHECK(plan.popups[0].items.back().id == 19999);
  }
  const Outline tree(deep);
  const kesto::BarMenuPlan linear = planned(tree, 0);
  CHECK(linear.tools.size() == 100);
  CHECK(linear.popups[0].items.size() == 2);  // "Kesto" and the one target with a file
  // Too deep for menus; the tools are found on the way as far as it goes.
  const kesto::BarMenuPlan nested = planned(tree, 1);
  CHECK(nested.popups[0].items.size() == 1);
  CHECK(nested.tools.size() == 33);
}

TEST_CASE("a submenu as deep as menus nest") {
  for (const int depth : {32, 33}) {
    std::vector<Row> rows(static_cast<size_t>(depth), Row{0, "d", "Folder"});
    for (int i = 0; i < depth; ++i) {
      rows[static_cast<size_t>(i)].depth = i;
    }
    rows.push_back({depth, "f.c", ".c"});
    CHECK(planned(Outline(rows), 1).files.size() == (depth == 32 ? 1 : 0));
  }
}
