#include "addon/foundation/setting.h"

#include <algorithm>

#include "addon/foundation/settings_store.h"

namespace kesto {

static_assert(TextSetting::kLimit + 1 == SettingsStore::kValueSize);

void SettingSection::read() {
  for (Setting* setting = first_; setting != nullptr; setting = setting->next_) {
    setting->read();
  }
}

void SettingSection::write() const {
  for (const Setting* setting = first_; setting != nullptr; setting = setting->next_) {
    setting->write();
  }
}

void Setting::read() {
  if (kind_ == Kind::kInteger) {
    auto& integer = static_cast<IntegerSetting&>(*this);
    integer.value = settings().readInteger(section_, name_, integer.default_value);
    return;
  }
  auto& text = static_cast<TextSetting&>(*this);
  char stored[SettingsStore::kValueSize] = "";
  settings().readString(section_, name_, stored, std::min(sizeof stored, text.limit + 1),
                        text.default_value);
  text.value = stored;
}

void Setting::write() const {
  if (kind_ == Kind::kInteger) {
    settings().writeInteger(section_, name_, static_cast<const IntegerSetting&>(*this).value);
  } else {
    settings().writeString(section_, name_, static_cast<const TextSetting&>(*this).value.c_str());
  }
}

}  // namespace kesto
