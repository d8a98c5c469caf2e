#include "addon/pages/html_page.h"

#include "addon/html/html_settings.h"
#include "addon/html/project_options.h"
#include "addon/ide/help_topics.h"
#include "addon/ide/project_client.h"
#include "addon/pages/page_ids.h"
#include "addon/topbar/bar_menu.h"

namespace kesto {

HTMLPage::HTMLPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "HTML generation", "Set HTML generation options",
                    kHelpPageHtml) {}

void HTMLPage::exchange(PageExchange& controls) {
  if (htmlSettings == nullptr) {
    return;
  }
  project_.meet(controls);
  // What a project that has gone meanwhile had is not the user's own.
  if (controls.stores() && !project_.isOpen() && !project_.isNone()) {
    return;
  }
  HtmlProjectOptions& its = htmlProjectOptions;
  HtmlSettings& own = *htmlSettings;
  const bool open = project_.isOpen();
  controls.flag(HTML_ENABLED, "Enable/Disable HTML generation",
                open ? its.enabled.value : own.own_enabled.value);
  controls.flag(HTML_AUTOMATIC, "Generate HTML documentation after each successful Make",
                open ? its.automatic.value : own.own_automatic.value);
  controls.text(HTML_FILTERS, "Set filters of the files to read, separated by ;",
                open ? its.filters.value : own.own_filters.value, TextSetting::kLimit);
}

void HTMLPage::filled(HWND dialog) {
  SetDlgItemTextA(dialog, HTML_WHOSE,
                  project_.isOpen() ? "These are the options of the open project."
                                    : "No project is open: these are the options without one.");
}

void HTMLPage::stored(HWND) {
  if (project_.isOpen()) {
    saveProjectOptions();
  } else if (htmlSettings != nullptr && project_.isNone()) {
    htmlSettings->section.write();
  }
  if (barMenu != nullptr) {
    barMenu->rebuildSoon();
  }
}

}  // namespace kesto
