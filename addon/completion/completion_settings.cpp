#include "addon/completion/completion_settings.h"

#include "addon/foundation/settings_store.h"

namespace kesto {

CompletionSettings* completionSettings = nullptr;

namespace {

constexpr char kSection[] = "Completion";
// The key left of Enter on a US keyboard.
constexpr int kDefaultKeyCode = 222;

}  // namespace

CompletionSettings::CompletionSettings() {
  enabled_ = settings().readInteger(kSection, "Enabled", 1);
  keyCode_ = settings().readInteger(kSection, "KeyCode", kDefaultKeyCode);
  char text[kSettingTextSize] = "";
  settings().readString(kSection, "TextCode", text, sizeof text, "???");
  keyText_ = text;
}

CompletionSettings::~CompletionSettings() {
  settings().writeInteger(kSection, "Enabled", enabled_);
  settings().writeInteger(kSection, "KeyCode", keyCode_);
  settings().writeString(kSection, "TextCode", keyText_);
}

}  // namespace kesto
