// The settings of keyword completion: whether it is on and which key asks for it.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include "addon/foundation/string.h"

namespace kesto {

class CompletionSettings {
 public:
  // Reads section "Completion".
  CompletionSettings();
  // Writes it back.
  ~CompletionSettings();
  CompletionSettings(const CompletionSettings&) = delete;
  CompletionSettings& operator=(const CompletionSettings&) = delete;

  bool enabled() const { return enabled_ != 0; }
  unsigned keyCode() const { return static_cast<unsigned>(key_code_); }

 private:
  int enabled_;
  int key_code_;
  String key_text_;
};

extern CompletionSettings* completionSettings;

}  // namespace kesto
