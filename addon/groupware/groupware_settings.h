// The settings of groupware that are the user's, in the settings store; the server
// directory is each project's. One object, created and destroyed by the lifecycle;
// user-interface thread only.
#pragma once

#include "addon/foundation/setting.h"
#include "addon/groupware/group_lists.h"

namespace kesto {

class GroupwareSettings {
 public:
  // Reads section "Groupware".
  GroupwareSettings();
  // Writes it back.
  ~GroupwareSettings();
  GroupwareSettings(const GroupwareSettings&) = delete;
  GroupwareSettings& operator=(const GroupwareSettings&) = delete;

  SettingSection section{"Groupware"};
  IntegerSetting enabled{section, "Enabled", 1};
  IntegerSetting mail_on_get{section, "MailOnGet", 0};
  IntegerSetting mail_on_send{section, "MailOnSend", 1};
  // Masks of the files that are exchanged, with ";" between them.
  TextSetting filters{section, "Filters", kExchangedFiles};
};

// The lifecycle fills and clears the slot; null outside a session.
extern GroupwareSettings* groupwareSettings;

}  // namespace kesto
