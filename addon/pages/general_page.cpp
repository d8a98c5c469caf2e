#include "addon/pages/general_page.h"

#include "addon/behaviours/general_behaviours.h"
#include "addon/ide/help_topics.h"
#include "addon/pages/page_ids.h"

namespace kesto {

namespace {

constexpr int kLeastPeriod = 1;
constexpr int kLongestPeriod = 60;

}  // namespace

GeneralPage::GeneralPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "General options", "Set general options",
                    kHelpPageGeneral) {}

void GeneralPage::exchange(PageExchange& controls) {
  if (generalBehaviours == nullptr) {
    return;
  }
  GeneralSettings& settings = generalBehaviours->settings;
  controls.flag(PAGE_CLEAR_ON_MAKE, "Clear message window when make starts",
                settings.clear_on_make.value);
  controls.flag(PAGE_CLOSE_ON_MAKE, "Close message window during make",
                settings.close_on_make.value);
  controls.flag(PAGE_CLOSE_PROJECT_ON_MAKE, "Close project window during make",
                settings.close_project_on_make.value);
  controls.flag(PAGE_ICONIZE_STATUS_ON_MAKE, "Iconize compile status box during make",
                settings.iconize_status_on_make.value);
  controls.flag(PAGE_VIEW_ON_OPEN, "Open project window when opening project",
                settings.view_on_open.value);
  controls.flag(PAGE_TIMER_SAVE, "Save modified files at regular intervals while a project is open",
                settings.timer_save.value);
  controls.number(PAGE_TIMER_COUNT, "Set minutes between two automatic saves",
                  settings.timer_count.value);
  controls.flag(PAGE_UNIQUE,
                "Bring the running Borland C++ to the front instead of starting another",
                settings.unique.value);
}

bool GeneralPage::valid(HWND dialog) {
  return requireRange(dialog, PAGE_TIMER_COUNT, kLeastPeriod, kLongestPeriod,
                      "Timer size must be between 0 and 60 min.");
}

void GeneralPage::stored(HWND) {
  if (generalBehaviours != nullptr) {
    generalBehaviours->settings.section.write();
  }
}

}  // namespace kesto
