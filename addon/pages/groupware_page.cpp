#include "addon/pages/groupware_page.h"

#include "addon/foundation/path.h"
#include "addon/groupware/groupware_settings.h"
#include "addon/groupware/project_options.h"
#include "addon/ide/help_topics.h"
#include "addon/ide/project_client.h"
#include "addon/pages/folder_choice.h"
#include "addon/pages/page_ids.h"
#include "addon/topbar/bar_menu.h"

namespace kesto {

GroupwarePage::GroupwarePage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Groupware", "Set groupware options",
                    kHelpPageGroupware) {}

void GroupwarePage::exchange(PageExchange& controls) {
  if (groupwareSettings == nullptr) {
    return;
  }
  project_.meet(controls);
  GroupwareSettings& own = *groupwareSettings;
  controls.flag(GROUPWARE_ENABLED, "Enable/Disable groupware", own.enabled.value);
  controls.flag(GROUPWARE_MAIL_ON_GET, "Send a mail at each Get action", own.mail_on_get.value);
  controls.flag(GROUPWARE_MAIL_ON_SEND, "Send a mail at each Send action", own.mail_on_send.value);
  controls.text(GROUPWARE_FILTERS, "Set filters for use", own.filters.value, own.filters.limit);
  project_.text(controls, GROUPWARE_SERVER, "Set server directory for the current project",
                groupwareProjectOptions.server_directory.value, kPathLimit);
  controls.plain(GROUPWARE_BROWSE, "Choose the server directory from the folders");
  controls.enable(GROUPWARE_BROWSE, project_.isOpen());
}

bool GroupwarePage::command(HWND dialog, int control, int notification) {
  if (control != GROUPWARE_BROWSE || notification != BN_CLICKED) {
    return false;
  }
  // Of this object nothing is needed afterwards; the IDE may close meanwhile.
  const std::string chosen = chooseFolder(dialog, "Server directory of the current project",
                                          controlText(dialog, GROUPWARE_SERVER));
  if (!chosen.empty() && IsWindow(dialog) != 0) {
    SetDlgItemTextA(dialog, GROUPWARE_SERVER, chosen.c_str());
  }
  return true;
}

void GroupwarePage::stored(HWND) {
  if (groupwareSettings != nullptr) {
    groupwareSettings->section.write();
  }
  if (project_.isOpen()) {
    saveProjectOptions();
  }
  if (barMenu != nullptr) {
    barMenu->rebuildSoon();
  }
}

}  // namespace kesto
