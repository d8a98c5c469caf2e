#include "addon/pages/top_menu_page.h"

#include "addon/ide/current_project.h"
#include "addon/ide/help_topics.h"
#include "addon/ide/project_client.h"
#include "addon/pages/page_ids.h"
#include "addon/topbar/bar_menu.h"
#include "addon/topbar/recent_files.h"

namespace kesto {

TopMenuPage::TopMenuPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Top screen bar", "Set top screen bar options",
                    kHelpPageTopBar) {}

// No value is refused: the bar and the lists get along with any.
void TopMenuPage::exchange(PageExchange& controls) {
  if (topBar == nullptr || recentFiles == nullptr) {
    return;
  }
  if (controls.stores()) {
    before_ = topBar->look();
  }
  exchangeBar(controls);
  exchangeMenus(controls);
  exchangeFiles(controls);
}

void TopMenuPage::exchangeBar(PageExchange& controls) {
  TopBarSettings& bar = topBar->settings;
  controls.flag(PAGE_BAR_ENABLED, "Activate topmost screen bar", bar.enabled.value);
  controls.number(PAGE_BAR_LEFT_MARGIN, "Set left margin in pixels", bar.left_margin.value);
  controls.number(PAGE_BAR_RIGHT_MARGIN, "Set right margin in pixels", bar.right_margin.value);
  controls.flag(PAGE_BAR_HIDE_WITH_IDE, "Hide top bar menu when Borland C++ iconizes",
                bar.hide_with_ide.value);
  controls.flag(PAGE_BAR_ON_TOP, "Keep menu bar always on top", bar.always_on_top.value);
}

// Shows what is in force, by the open project or by the settings.
void TopMenuPage::exchangeMenus(PageExchange& controls) {
  int construction = static_cast<int>(topBar->construction());
  int hides_with_view = topBar->hidesWithView() ? 1 : 0;
  const ShownMenus in_force = {construction, hides_with_view};
  controls.choice(PAGE_BAR_LINEAR, "Linear construction of top bar", construction,
                  static_cast<int>(BarConstruction::kLinear));
  controls.choice(PAGE_BAR_HIERARCHICAL, "Hierarchical construction of top bar", construction,
                  static_cast<int>(BarConstruction::kHierarchical));
  controls.choice(PAGE_BAR_NO_MENU, "No menu in the top bar", construction,
                  static_cast<int>(BarConstruction::kNoMenu));
  controls.flag(PAGE_BAR_HIDE_WITH_VIEW, "Hide menus when project view is opened", hides_with_view);
  controls.number(PAGE_BAR_MENU_SIZE, "Set size of one column in the top bar menu",
                  topBar->settings.menu_size.value);
  // They may be another project's by now: what was left alone stays as that one has it.
  if (controls.stores()) {
    topBar->chooseMenus(
        construction != menus_.construction ? construction : in_force.construction,
        hides_with_view != menus_.hides_with_view ? hides_with_view : in_force.hides_with_view);
  }
  if (controls.stores() || controls.fills()) {
    menus_ = {construction, hides_with_view};
  }
}

void TopMenuPage::exchangeFiles(PageExchange& controls) {
  controls.number(PAGE_BAR_MAXIMUM_PROJECTS, "Set number of most recently .IDE files in memory",
                  recentFiles->maximumOfProjects().value);
  controls.number(PAGE_BAR_MAXIMUM_HEADERS, "Set number of most recently .h files in memory",
                  recentFiles->maximumOfHeaders().value);
  controls.flag(PAGE_BAR_OTHER_VIEW, "Always open a new view when edit file",
                topBar->settings.edit_other_view.value);
}

void TopMenuPage::stored(HWND) {
  if (topBar == nullptr || recentFiles == nullptr) {
    return;
  }
  recentFiles->cutToMaxima();
  recentFiles->save();
  topBar->settings.section.write();
  if (isProjectOpen()) {
    saveProjectOptions();
  }
  if (barMenu != nullptr) {
    barMenu->rebuild();
  }
  topBar->follow(before_);
}

}  // namespace kesto
