// The editor title bars: the three buttons, and the lists behind their menus.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include "addon/foundation/setting.h"
#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"
#include "addon/navigation/fnc.h"
#include "addon/navigation/title_buttons.h"

namespace kesto {

struct MenuSettings {
  SettingSection section{"Menus"};
  IntegerSetting sorted{section, "Sorted", 1};
  IntegerSetting size{section, "Size", 50};  // items per column
  IntegerSetting enabled{section, "Enabled", 1};
};

class EditorNavigation {
 public:
  // Reads the settings. new_shell chooses between the two looks.
  EditorNavigation(HWND owner, bool new_shell);
  // Writes them back.
  ~EditorNavigation();
  EditorNavigation(const EditorNavigation&) = delete;
  EditorNavigation& operator=(const EditorNavigation&) = delete;

  MenuSettings settings;
  bool enabled() const { return settings.enabled.value != 0; }

  // Each reads the file as the IDE holds it, refills its list and returns the
  // popup of it, which the caller destroys. Null, and the reason on the status
  // line, when there is nothing to show.
  HMENU scanFunctions(const char* file);
  HMENU scanIncludes(const char* file);
  // Entries of the last scan, null for an index outside it.
  const Fnc* functionAt(int index) const;
  const char* includeAt(int index) const;

  // Draws the buttons into the title bar.
  void paint(HWND editor) const;
  // The button under the screen point, or -1. On a hit the point becomes the
  // place of the button's popup.
  int hitTest(HWND editor, POINT& point) const;

 private:
  int buttonsLeftOf(HWND editor, const RECT& frame) const;

  HWND owner_;
  Tableau<Fnc> functions_;
  const ButtonGeometry& geometry_;
  String bitmap_names_[kTitleButtons];
  Tableau<String> includes_;
};

extern EditorNavigation* editorNavigation;

}  // namespace kesto
