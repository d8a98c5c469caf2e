// A session of the bar's objects and the project's clients against the played IDE and
// bare windows, with settings of its own. Everything taken from the IDE must be given
// back at its end.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "addon/topbar/bar_menu.h"
#include "tests/addon/fake_ide.h"
#include "tests/addon/window_fixture.h"

// Settings below a key of the tests' own, empty at both ends.
class OwnSettings {
 public:
  OwnSettings();
  ~OwnSettings();
  OwnSettings(const OwnSettings&) = delete;
  OwnSettings& operator=(const OwnSettings&) = delete;
  void clear();
};

class BarSession {
 public:
  BarSession();
  ~BarSession();
  BarSession(const BarSession&) = delete;
  BarSession& operator=(const BarSession&) = delete;

  // Reads the settings anew, as a start does.
  void create();
  void destroy();
  void openProject(const std::string& file) {
    ide.project.loaded = true;
    ide.project.open(file);
  }
  std::string lastStatus() const {
    return ide.status_line.texts.empty() ? "" : ide.status_line.texts.back();
  }
  // The texts of a menu's items; of the bar's own, and of the popup "Kesto".
  static std::vector<std::string> texts(HMENU menu);
  std::vector<std::string> barTexts() const { return texts(GetMenu(windows.bar)); }
  std::vector<std::string> mainTexts() const { return texts(GetSubMenu(GetMenu(windows.bar), 0)); }

  OwnSettings own_settings;
  WindowFixture windows;
  fake::Ide ide;
  kesto::MenuFeatures features;

 private:
  int references_before_;
};
