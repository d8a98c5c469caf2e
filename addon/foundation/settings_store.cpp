#include "addon/foundation/settings_store.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

#include "addon/foundation/settings_values.h"

namespace kesto {

namespace {

constinit SettingsStore the_store;

class RegistryKey {
 public:
  RegistryKey() = default;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey() {
    if (key_ != nullptr) {
      RegCloseKey(key_);
    }
  }

  bool open(const char* path) {
    return RegOpenKeyA(HKEY_LOCAL_MACHINE, path, &key_) == ERROR_SUCCESS;
  }
  bool create(const char* path) {
    return RegCreateKeyA(HKEY_LOCAL_MACHINE, path, &key_) == ERROR_SUCCESS;
  }
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

void copyText(const char* text, char* output, std::size_t size) {
  if (size == 0) {
    return;
  }
  const std::size_t length = std::min(strlen(text), size - 1);
  memmove(output, text, length);
  output[length] = '\0';
}

String joined(const char* first, const char* separator, const char* second) {
  String text(first);
  text += separator;
  text += second;
  return text;
}

String entryName(int index) {
  String name("Entry");
  name += index;
  return name;
}

}  // namespace

SettingsStore& settings() {
  return the_store;
}

SettingsStore::~SettingsStore() {
  delete[] root_path_;
}

void SettingsStore::setRoot(const char* path) {
  const std::size_t size = strlen(path) + 1;
  char* copy = new char[size];
  memcpy(copy, path, size);
  delete[] root_path_;
  root_path_ = copy;
}

String SettingsStore::keyPath(const char* section) const {
  return joined(root_path_, "\\", section);
}

bool SettingsStore::writeString(const char* section, const char* name, const char* text) {
  if (root_path_ == nullptr) {
    return false;
  }
  const String path = keyPath(section);
  RegistryKey key;
  if (!key.open(path) && !key.create(path)) {
    return false;
  }
  const DWORD size = static_cast<DWORD>(strlen(text)) + 1;
  return RegSetValueExA(key.get(), name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), size) ==
         ERROR_SUCCESS;
}

bool SettingsStore::writeInteger(const char* section, const char* name, int value) {
  char text[kIntegerTextSize];
  formatInteger(value, text);
  return writeString(section, name, text);
}

bool SettingsStore::readValue(const char* section, const char* name,
                              char (&scratch)[kValueSize]) const {
  memset(scratch, 0, sizeof scratch);
  if (root_path_ == nullptr) {
    return false;
  }
  RegistryKey key;
  if (!key.open(keyPath(section))) {
    return false;
  }
  DWORD size = sizeof scratch;
  if (RegQueryValueExA(key.get(), name, nullptr, nullptr, reinterpret_cast<BYTE*>(scratch),
                       &size) != ERROR_SUCCESS) {
    return false;
  }
  // Values written by others need not be terminated.
  scratch[size > 0 ? size - 1 : 0] = '\0';
  return true;
}

bool SettingsStore::readString(const char* section, const char* name, char* output,
                               std::size_t size, const char* default_text) const {
  char scratch[kValueSize];
  if (readValue(section, name, scratch)) {
    copyText(scratch, output, size);
    return true;
  }
  if (default_text == nullptr) {
    return false;
  }
  copyText(default_text, output, size);
  return true;
}

int SettingsStore::readInteger(const char* section, const char* name, int default_value) const {
  char default_text[kIntegerTextSize];
  char text[kIntegerTextSize];
  formatInteger(default_value, default_text);
  readString(section, name, text, sizeof text, default_text);
  return parseInteger(text, default_value);
}

void SettingsStore::readList(const char* section, const char* list, Tableau<String>& entries,
                             int limit) const {
  const String count_name = joined("Nb", "", list);
  const String subsection = joined(section, "\\", list);
  const int count = std::min({readInteger(section, count_name, 0), limit, kListLimit});
  entries.clear();
  for (int i = 0; i < count; ++i) {
    char text[kValueSize];
    readString(subsection, entryName(i), text, sizeof text, "not found");
    entries.append(new String(text));
  }
}

bool SettingsStore::writeList(const char* section, const char* list,
                              const Tableau<String>& entries) {
  const String count_name = joined("Nb", "", list);
  const String subsection = joined(section, "\\", list);
  bool written = writeInteger(section, count_name, entries.count());
  for (int i = 0; i < entries.count(); ++i) {
    written = writeString(subsection, entryName(i), *entries.at(i)) && written;
  }
  return written;
}

}  // namespace kesto
