#include "workbench/app/settings_store.h"

#include <windows.h>

#include <cstddef>

namespace workbench {
namespace {

constexpr char kKey[] = "Software\\Kesto\\Workbench";
constexpr std::size_t kMostRecent = 99;

std::string recentName(std::size_t number) {
  std::string name("Recent");
  name += std::to_string(number);
  return name;
}

class Values {
 public:
  explicit Values(REGSAM access) {
    if (RegCreateKeyExA(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, access, nullptr, &key_, nullptr) !=
        ERROR_SUCCESS) {
      key_ = nullptr;
    }
  }
  ~Values() {
    if (key_ != nullptr) {
      RegCloseKey(key_);
    }
  }
  Values(const Values&) = delete;
  Values& operator=(const Values&) = delete;

  int read(const char* name, int least, int most, int otherwise) const {
    DWORD value = 0;
    DWORD size = sizeof value;
    DWORD type = 0;
    if (key_ == nullptr ||
        RegQueryValueExA(key_, name, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size) !=
            ERROR_SUCCESS ||
        type != REG_DWORD || value < static_cast<DWORD>(least) ||
        value > static_cast<DWORD>(most)) {
      return otherwise;
    }
    return static_cast<int>(value);
  }
  // Empty when there is none.
  std::string readText(const char* name) const {
    char text[1024] = {};
    DWORD size = sizeof text - 1;
    DWORD type = 0;
    const bool read =
        key_ != nullptr && RegQueryValueExA(key_, name, nullptr, &type,
                                            reinterpret_cast<BYTE*>(text), &size) == ERROR_SUCCESS;
    return read && type == REG_SZ ? std::string(text) : std::string();
  }
  void writeText(const char* name, const std::string& text) {
    if (key_ != nullptr) {
      RegSetValueExA(key_, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                     static_cast<DWORD>(text.size() + 1));
    }
  }
  bool remove(const char* name) {
    return key_ != nullptr && RegDeleteValueA(key_, name) == ERROR_SUCCESS;
  }
  void write(const char* name, int number) {
    const auto value = static_cast<DWORD>(number);
    if (key_ != nullptr) {
      RegSetValueExA(key_, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
    }
  }

 private:
  HKEY key_ = nullptr;
};

}  // namespace

void loadSettings(EditorSettings* settings) {
  const Values values(KEY_READ);
  settings->tab_width = values.read("TabWidth", kLeastTabWidth, kMostTabWidth, settings->tab_width);
  settings->font_points =
      values.read("FontPoints", kLeastFontPoints, kMostFontPoints, settings->font_points);
  settings->line_numbers = values.read("LineNumbers", 0, 1, settings->line_numbers ? 1 : 0) != 0;
  settings->colours = values.read("Colours", 0, 1, settings->colours ? 1 : 0) != 0;
}

void saveSettings(const EditorSettings& settings) {
  Values values(KEY_WRITE);
  values.write("TabWidth", settings.tab_width);
  values.write("FontPoints", settings.font_points);
  values.write("LineNumbers", settings.line_numbers ? 1 : 0);
  values.write("Colours", settings.colours ? 1 : 0);
}

std::vector<std::string> loadRecent() {
  const Values values(KEY_READ);
  std::vector<std::string> paths;
  while (paths.size() < kMostRecent) {
    const std::string path = values.readText(recentName(paths.size() + 1).c_str());
    if (path.empty()) {
      break;
    }
    paths.push_back(path);
  }
  return paths;
}

void saveRecent(const std::vector<std::string>& paths) {
  Values values(KEY_WRITE);
  std::size_t number = 0;
  for (const std::string& path : paths) {
    values.writeText(recentName(++number).c_str(), path);
  }
  while (number < kMostRecent && values.remove(recentName(number + 1).c_str())) {
    ++number;
  }
}

}  // namespace workbench
