#include "workbench/script/settings.h"

#include <windows.h>

namespace workbench {
namespace {

constexpr char kRoot[] = "SOFTWARE\\Borland\\Borland C++\\5.0\\Ide\\AddOns\\Kestoaob\\";

class Key {
 public:
  Key(const std::string& section, REGSAM access, bool create) {
    std::string path = kRoot + section;
    LONG result = create ? RegCreateKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, access,
                                           nullptr, &key_, nullptr)
                         : RegOpenKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, access, &key_);
    if (result != ERROR_SUCCESS) {
      key_ = nullptr;
    }
  }
  ~Key() {
    if (key_ != nullptr) {
      RegCloseKey(key_);
    }
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

bool deleteTree(const std::string& section) {
  {
    Key key(section, KEY_READ, false);
    if (key.get() == nullptr) {
      return true;
    }
    char name[256];
    while (RegEnumKeyA(key.get(), 0, name, sizeof name) == ERROR_SUCCESS) {
      if (!deleteTree(section + "\\" + name)) {
        return false;
      }
    }
  }
  return RegDeleteKeyA(HKEY_LOCAL_MACHINE, (kRoot + section).c_str()) == ERROR_SUCCESS;
}

}  // namespace

bool readSetting(const std::string& section, const std::string& name, std::string* text) {
  Key key(section, KEY_READ, false);
  DWORD size = 0;
  if (key.get() == nullptr || RegQueryValueExA(key.get(), name.c_str(), nullptr, nullptr, nullptr,
                                               &size) != ERROR_SUCCESS) {
    return false;
  }
  std::string read(size, '\0');
  LONG result = RegQueryValueExA(key.get(), name.c_str(), nullptr, nullptr,
                                 reinterpret_cast<BYTE*>(read.data()), &size);
  if (result != ERROR_SUCCESS) {
    return false;
  }
  *text = read.substr(0, read.find('\0'));
  return true;
}

bool writeSetting(const std::string& section, const std::string& name, const std::string& text) {
  Key key(section, KEY_WRITE, true);
  return key.get() != nullptr &&
         RegSetValueExA(key.get(), name.c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(text.c_str()),
                        static_cast<DWORD>(text.size()) + 1) == ERROR_SUCCESS;
}

bool deleteSetting(const std::string& section, const std::string& name) {
  Key key(section, KEY_WRITE, false);
  if (key.get() == nullptr) {
    return true;
  }
  LONG result = RegDeleteValueA(key.get(), name.c_str());
  return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
}

bool deleteSection(const std::string& section) {
  return deleteTree(section);
}

}  // namespace workbench
