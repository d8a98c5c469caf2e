// Keyword completion of the process: its settings with the list of keyword files, and what
// these complete. It is the completion source while there is a keyword file in the list.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include "addon/completion/completion.h"
#include "addon/foundation/key_code.h"
#include "addon/foundation/setting.h"
#include "addon/foundation/string.h"
#include "addon/ide/completion_source.h"

namespace kesto {

struct CompletionSettings {
  SettingSection section{"Completion"};
  IntegerSetting enabled{section, "Enabled", 1};
  IntegerSetting key_code{section, "KeyCode", 222};  // left of Enter on a US keyboard
  TextSetting key_text{section, "TextCode", kNoKeyText};
  ListSetting files{section, "Files"};  // of keywords
};

class CompletionEngine : public CompletionSource {
 public:
  // Reads the settings and loads the keyword files.
  CompletionEngine();
  // Writes them back.
  ~CompletionEngine() override;
  CompletionEngine(const CompletionEngine&) = delete;
  CompletionEngine& operator=(const CompletionEngine&) = delete;

  CompletionStep strike(std::string_view word) override { return completion_.strike(word); }

  CompletionSettings settings;
  bool enabled() const { return settings.enabled.value != 0; }
  unsigned keyCode() const { return static_cast<unsigned>(settings.key_code.value); }
  // Loads the files of the list anew.
  void load();

 private:
  Completion completion_;
};

extern CompletionEngine* completionEngine;

// Makes a keyword file of a source file and returns its path, empty when there is none now.
// What stands in the way is told in a box, and so is a file that would be replaced, both
// over the owner.
String extractKeywordsOf(void* owner, const char* source);

}  // namespace kesto
