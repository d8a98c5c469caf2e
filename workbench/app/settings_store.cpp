#include "workbench/app/settings_store.h"

#include <windows.h>

namespace workbench {
namespace {

constexpr char kKey[] = "Software\\Kesto\\Workbench";

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

}  // namespace workbench
