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
  switch (kind_) {
    case Kind::kInteger: {
      auto& integer = static_cast<IntegerSetting&>(*this);
      integer.value = settings().readInteger(section_, name_, integer.default_value);
      break;
    }
    case Kind::kText: {
      auto& text = static_cast<TextSetting&>(*this);
      char stored[SettingsStore::kValueSize] = "";
      settings().readString(section_, name_, stored, std::min(sizeof stored, text.limit + 1),
                            text.default_value);
      text.value = stored;
      break;
    }
    case Kind::kList: {
      Tableau<String> entries;
      settings().readList(section_, name_, entries);
      auto& list = static_cast<ListSetting&>(*this).value;
      list.clear();
      for (int i = 0; i < entries.count(); ++i) {
        if (entries.at(i)->view() != kMissingEntry) {
          list.emplace_back(entries.at(i)->view());
        }
      }
      break;
    }
  }
}

void Setting::write() const {
  switch (kind_) {
    case Kind::kInteger:
      settings().writeInteger(section_, name_, static_cast<const IntegerSetting&>(*this).value);
      break;
    case Kind::kText:
      settings().writeString(section_, name_, static_cast<const TextSetting&>(*this).value.c_str());
      break;
    case Kind::kList: {
      Tableau<String> entries;
      for (const std::string& entry : static_cast<const ListSetting&>(*this).value) {
        entries.append(new String(entry));
      }
      settings().writeList(section_, name_, entries);
      break;
    }
  }
}

}  // namespace kesto
