// What the bar's menus shall hold, before they are menus. Popups refer to each other
// by position, so that neither a wide nor a deep project nests anything. Plain code.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "addon/ide/node_tree.h"
#include "addon/topbar/recent_list.h"

namespace kesto {

// The bar's ranges of commands. What has no id left in its range is left out.
inline constexpr int kFirstProjectId = 200;
inline constexpr int kLastProjectId = 299;
inline constexpr int kFirstToolId = 300;
inline constexpr int kLastToolId = 399;
inline constexpr int kFirstHeaderId = 400;
inline constexpr int kLastHeaderId = 599;
inline constexpr int kFirstFileId = 10000;
inline constexpr int kLastFileId = 19999;

// Menus below the bar that the hierarchical construction nests at most; what lies
// deeper in the project is left out.
inline constexpr int kDeepestMenu = 32;

struct BarItem {
  enum class Kind { kCommand, kSeparator, kPopup };
  Kind kind = Kind::kCommand;
  std::string text;
  int id = 0;     // of a command
  int popup = 0;  // of a popup: its position in the plan
  bool column_break = false;
};

struct BarPopup {
  std::vector<BarItem> items;
};

// A node and the popup of the plan that shows it, or that it is the title of.
struct PlacedNode {
  unsigned node;
  int popup;
};

struct BarMenuPlan {
  static constexpr int kBar = 0;
  static constexpr int kMain = 1;

  std::vector<BarPopup> popups;
  std::vector<unsigned> tools;  // item n has the n-th id of its range
  std::vector<PlacedNode> files;
  std::vector<PlacedNode> targets;
};

struct BarMenuContent {
  const RecentList* projects = nullptr;  // null: none are known
  const RecentList* headers = nullptr;
  const NodeTree* tree = nullptr;  // null: no project is open
  int construction = 0;            // 0 linear, 1 hierarchical, else no project menus
  int column_size = 0;             // items in a column; below 1 it is endless
  bool groupware_active = false;
  bool html_active = false;
};

// The text of a tool's item, from its file's name.
std::string toolText(std::string_view file_name);

BarMenuPlan planBarMenu(const BarMenuContent& content);

}  // namespace kesto
