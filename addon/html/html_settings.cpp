#include "addon/html/html_settings.h"

#include "addon/foundation/settings_store.h"
#include "addon/html/project_options.h"
#include "addon/ide/current_project.h"

namespace kesto {

HtmlSettings* htmlSettings = nullptr;

namespace {

constexpr char kSection[] = "HTML";

}  // namespace

HtmlSettings::HtmlSettings() {
  enabled_ = settings().readInteger(kSection, "Enabled", 1);
  automatic_ = settings().readInteger(kSection, "Auto", 1);
  char text[SettingsStore::kValueSize] = "";
  settings().readString(kSection, "Filters", text, sizeof text, "*.cpp;*.cc;*.c;*.h;*.rh");
  filters_ = text;
}

HtmlSettings::~HtmlSettings() {
  settings().writeInteger(kSection, "Enabled", enabled_);
  settings().writeInteger(kSection, "Auto", automatic_);
  settings().writeString(kSection, "Filters", filters_);
}

bool HtmlSettings::enabled() const {
  return (isProjectOpen() ? htmlProjectOptions.enabled.value : enabled_) != 0;
}

bool HtmlSettings::automatic() const {
  return (isProjectOpen() ? htmlProjectOptions.automatic.value : automatic_) != 0;
}

std::string HtmlSettings::filters() const {
  return isProjectOpen() ? htmlProjectOptions.filters.value : std::string(filters_.view());
}

}  // namespace kesto
