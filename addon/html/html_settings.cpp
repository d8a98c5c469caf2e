#include "addon/html/html_settings.h"

#include "addon/html/project_options.h"
#include "addon/ide/current_project.h"

namespace kesto {

HtmlSettings* htmlSettings = nullptr;

HtmlSettings::HtmlSettings() {
  section.read();
}

HtmlSettings::~HtmlSettings() {
  section.write();
}

bool HtmlSettings::enabled() const {
  return (isProjectOpen() ? htmlProjectOptions.enabled.value : own_enabled.value) != 0;
}

bool HtmlSettings::automatic() const {
  return (isProjectOpen() ? htmlProjectOptions.automatic.value : own_automatic.value) != 0;
}

std::string HtmlSettings::filters() const {
  return isProjectOpen() ? htmlProjectOptions.filters.value : own_filters.value;
}

}  // namespace kesto
