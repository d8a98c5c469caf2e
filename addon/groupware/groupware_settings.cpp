#include "addon/groupware/groupware_settings.h"

#include "addon/foundation/settings_store.h"
#include "addon/groupware/group_lists.h"

namespace kesto {

GroupwareSettings* groupwareSettings = nullptr;

namespace {

constexpr char kSection[] = "Groupware";

}  // namespace

GroupwareSettings::GroupwareSettings() {
  enabled_ = settings().readInteger(kSection, "Enabled", 1);
  mail_on_get_ = settings().readInteger(kSection, "MailOnGet", 0);
  mail_on_send_ = settings().readInteger(kSection, "MailOnSend", 1);
  char text[SettingsStore::kValueSize] = "";
  settings().readString(kSection, "Filters", text, sizeof text, kExchangedFiles);
  filters_ = text;
}

GroupwareSettings::~GroupwareSettings() {
  settings().writeInteger(kSection, "Enabled", enabled_);
  settings().writeInteger(kSection, "MailOnGet", mail_on_get_);
  settings().writeInteger(kSection, "MailOnSend", mail_on_send_);
  settings().writeString(kSection, "Filters", filters_);
}

}  // namespace kesto
