// The settings of the HTML documentation: those of the user, in the settings store, and
// those of the open project, which go before them. What may be edited is whichever counts. One
// object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <string>

#include "addon/foundation/setting.h"

namespace kesto {

class HtmlSettings {
 public:
  // Reads section "HTML".
  HtmlSettings();
  // Writes it back.
  ~HtmlSettings();
  HtmlSettings(const HtmlSettings&) = delete;
  HtmlSettings& operator=(const HtmlSettings&) = delete;

  bool enabled() const;
  // Generate after each successful Make.
  bool automatic() const;
  // Masks of the files to read, with ";" between them.
  std::string filters() const;

  SettingSection section{"HTML"};
  IntegerSetting own_enabled{section, "Enabled", 1};
  IntegerSetting own_automatic{section, "Auto", 1};
  TextSetting own_filters{section, "Filters", "*.cpp;*.cc;*.c;*.h;*.rh"};
};

extern HtmlSettings* htmlSettings;

}  // namespace kesto
