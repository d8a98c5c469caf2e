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
  key_code_ = settings().readInteger(kSection, "KeyCode", kDefaultKeyCode);
  char text[SettingsStore::kValueSize] = "";
  settings().readString(kSection, "TextCode", text, sizeof text, "???");
  key_text_ = text;
}

CompletionSettings::~CompletionSettings() {
  settings().writeInteger(kSection, "Enabled", enabled_);
  settings().writeInteger(kSection, "KeyCode", key_code_);
  settings().writeString(kSection, "TextCode", key_text_);
}

}  // namespace kesto
