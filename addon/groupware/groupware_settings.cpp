#include "addon/groupware/groupware_settings.h"

namespace kesto {

GroupwareSettings* groupwareSettings = nullptr;

GroupwareSettings::GroupwareSettings() {
  section.read();
}

GroupwareSettings::~GroupwareSettings() {
  section.write();
}

}  // namespace kesto
