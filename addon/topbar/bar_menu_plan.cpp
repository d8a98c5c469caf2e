#include "addon/topbar/bar_menu_plan.h"

#include <algorithm>

#include "addon/foundation/path.h"
#include "addon/topbar/project_menu_plan.h"

namespace kesto {
namespace {

void appendCommand(BarPopup& popup, std::string text, int id) {
  popup.items.push_back({BarItem::Kind::kCommand, std::move(text), id, 0, false});
}

void appendSeparator(BarPopup& popup) {
  popup.items.push_back({BarItem::Kind::kSeparator, "", 0, 0, false});
}

// Appends an empty popup to another one and returns its position.
int appendPopup(BarMenuPlan& plan, int to, std::string text) {
  const int position = static_cast<int>(plan.popups.size());
  plan.popups.emplace_back();
  plan.popups[static_cast<size_t>(to)].items.push_back(
      {BarItem::Kind::kPopup, std::move(text), 0, position, false});
  return position;
}

void appendRecent(BarPopup& popup, const RecentList* list, int first_id, int last_id) {
  const int count = list != nullptr ? std::min(list->count(), last_id - first_id + 1) : 0;
  for (int i = 0; i < count; ++i) {
    appendCommand(popup, std::string(fileNamePart(list->at(i))), first_id + i);
  }
}

void appendFeatureMenus(BarMenuPlan& plan, const BarMenuContent& content) {
  const auto popup = [&](const char* title) -> BarPopup& {
    const int position = appendPopup(plan, BarMenuPlan::kMain, title);
    return plan.popups[static_cast<size_t>(position)];
  };
  appendSeparator(plan.popups[BarMenuPlan::kMain]);
  BarPopup& tasks = popup("Tasks");
  appendCommand(tasks, "Manage...", 171);
  appendCommand(tasks, "Flash...", 173);
  if (content.groupware_active) {
    BarPopup& groupware = popup("Groupware");
    appendCommand(groupware, "Get...", 175);
    appendCommand(groupware, "Send...", 176);
    appendSeparator(groupware);
    appendCommand(groupware, "Report...", 177);
    appendCommand(groupware, "Server report...", 178);
    appendSeparator(groupware);
    appendCommand(groupware, "Mail...", 174);
  }
  if (content.html_active) {
    BarPopup& html = popup("HTML");
    appendCommand(html, "Generate", 194);
    appendCommand(html, "Run", 195);
  }
}

}  // namespace

std::string toolText(std::string_view file_name) {
  return "run " + std::string(file_name);
}

BarMenuPlan planBarMenu(const BarMenuContent& content) {
  BarMenuPlan plan;
  plan.popups.emplace_back();
  appendPopup(plan, BarMenuPlan::kBar, "Kesto");
  const auto main = [&]() -> BarPopup& { return plan.popups[BarMenuPlan::kMain]; };

  appendRecent(main(), content.projects, kFirstProjectId, kLastProjectId);
  if (!main().items.empty()) {
    appendSeparator(main());
  }
  if (content.tree != nullptr && content.construction == 0) {
    planLinearMenus(*content.tree, content.column_size, plan);
  } else if (content.tree != nullptr && content.construction == 1) {
    planHierarchicalMenus(*content.tree, content.column_size, plan);
  }
  if (!plan.tools.empty()) {
    appendSeparator(main());
  }
  const int includes = appendPopup(plan, BarMenuPlan::kMain, "Last Includes");
  appendRecent(plan.popups[static_cast<size_t>(includes)], content.headers, kFirstHeaderId,
               kLastHeaderId);
  if (content.tree != nullptr) {
    appendFeatureMenus(plan, content);
  }
  appendSeparator(main());
  appendCommand(main(), "Options...", 199);
  appendCommand(main(), "Help...", 196);
  return plan;
}

}  // namespace kesto
