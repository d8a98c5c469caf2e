// The bar's settings and its two heights. One object, created and destroyed by
// the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include "addon/foundation/setting.h"
#include "addon/topbar/placement.h"

namespace kesto {

// How the project's menus are built into the bar.
enum class BarConstruction : int { kLinear = 0, kHierarchical = 1, kNoMenu = 2 };

// Margins in pixels, which may be negative; what the user has for projects that say nothing
// of how they are built in. The section's other settings are those of the recent files.
struct TopBarSettings {
  explicit TopBarSettings(bool new_shell)
      : left_margin(section, "LeftMargin", new_shell ? -1 : 17),
        right_margin(section, "RightMargin", new_shell ? 58 : 37) {}

  SettingSection section{"TopBar"};
  IntegerSetting enabled{section, "Enabled", 1};
  IntegerSetting hide_with_ide{section, "HideWithBCW", 1};
  IntegerSetting hide_with_view{section, "HideWithView", 0};
  IntegerSetting always_on_top{section, "AlwaysOnTop", 0};
  IntegerSetting edit_other_view{section, "EditOtherView", 0};
  IntegerSetting left_margin;
  IntegerSetting right_margin;
  IntegerSetting menu_size{section, "MenuSize", 50};  // items per column
  IntegerSetting construction{section, "Hierarchical", 0};
};

class TopBar {
 public:
  // Reads the settings.
  TopBar(bool new_shell, HWND bar);
  // Writes them back.
  ~TopBar();
  TopBar(const TopBar&) = delete;
  TopBar& operator=(const TopBar&) = delete;

  HWND window() const { return bar_; }
  TopBarSettings settings;
  bool enabled() const { return settings.enabled.value != 0; }
  bool hidesWithIde() const { return settings.hide_with_ide.value != 0; }
  bool hidesWithView() const { return hide_with_view_ != 0; }
  bool alwaysOnTop() const { return settings.always_on_top.value != 0; }
  BarConstruction construction() const { return static_cast<BarConstruction>(construction_); }
  int menuSize() const { return settings.menu_size.value; }

  // Takes construction and hiding from the settings, as a project opens.
  void readMenuSettings();
  // What the open project says of them; the settings stay as they are.
  void useConstruction(int construction) { construction_ = construction; }
  void useHidesWithView(int hides) { hide_with_view_ = hides; }

  // What the user chose: in force from now on, and kept where it is another than before.
  void chooseMenus(int construction, int hides_with_view);
  // Has the window follow the settings, after they were these.
  struct Look {
    int enabled;
    int always_on_top;
    int left_margin;
    int right_margin;
  };
  Look look() const;
  void follow(const Look& before);

  // Moves the bar between its margins with one menu row, or with all rows.
  void place(bool expanded);
  // Shows every row of a wrapped menu bar.
  void expand();
  // Back to one row; a bar that is not expanded stays as it is.
  void collapse();
  // To its one row between the margins, the first time it is asked to.
  void placeFirst();
  // The rows are counted anew at the next expansion.
  void forgetExpandedHeight() { expanded_height_ = 0; }

 private:
  BarPlacement normalPlace() const;
  int measureExpandedHeight() const;

  bool new_shell_;
  HWND bar_;
  bool expanded_ = false;
  bool placed_ = false;
  int hide_with_view_ = 0;   // in force
  int construction_ = 0;     // in force
  int expanded_height_ = 0;  // pixels, 0 while unknown
};

extern TopBar* topBar;

}  // namespace kesto
