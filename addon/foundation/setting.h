// One stored setting of the user: where it stands in the settings store, its default and
// its value, declared in one place. A section is the settings of one feature under one name,
// read and written together in the order of their declaration. A setting belongs to the
// section it is declared with and must not outlive it. User-interface thread.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace kesto {

class Setting;

class SettingSection {
 public:
  explicit SettingSection(const char* name) : name_(name) {}
  SettingSection(const SettingSection&) = delete;
  SettingSection& operator=(const SettingSection&) = delete;

  // One that was never stored reads as its default. A failed write is passed over.
  void read();
  void write() const;
  const char* name() const { return name_; }

 private:
  friend class Setting;
  const char* name_;
  Setting* first_ = nullptr;
  Setting** end_ = &first_;
};

class Setting {
 public:
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;

  void read();
  void write() const;

 protected:
  enum class Kind { kInteger, kText, kList };
  Setting(SettingSection& section, const char* name, Kind kind)
      : section_(section.name()), name_(name), kind_(kind) {
    *section.end_ = this;
    section.end_ = &next_;
  }
  ~Setting() = default;

 private:
  friend class SettingSection;
  const char* section_;
  const char* name_;
  Kind kind_;
  Setting* next_ = nullptr;
};

struct IntegerSetting : Setting {
  IntegerSetting(SettingSection& section, const char* name, int by_default)
      : Setting(section, name, Kind::kInteger), default_value(by_default), value(by_default) {}

  const int default_value;
  int value;
};

struct TextSetting : Setting {
  // Characters that the store gives back at most.
  static constexpr std::size_t kLimit = 1999;

  TextSetting(SettingSection& section, const char* name, const char* by_default,
              std::size_t most = kLimit)
      : Setting(section, name, Kind::kText),
        default_value(by_default),
        limit(most),
        value(by_default) {}

  const char* const default_value;
  const std::size_t limit;  // characters that are read; what is longer is cut
  std::string value;
};

// Entries that are not there are passed over.
struct ListSetting : Setting {
  ListSetting(SettingSection& section, const char* name) : Setting(section, name, Kind::kList) {}

  std::vector<std::string> value;
};

}  // namespace kesto
