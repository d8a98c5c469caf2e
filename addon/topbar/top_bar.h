// The bar's settings and its two heights. One object, created and destroyed by
// the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

// How the project's menus are built into the bar.
enum class BarConstruction : int { kLinear = 0, kHierarchical = 1, kNoMenu = 2 };

class TopBar {
 public:
  // Reads the settings of section "TopBar".
  TopBar(bool new_shell, HWND bar);
  // Writes them back.
  ~TopBar();
  TopBar(const TopBar&) = delete;
  TopBar& operator=(const TopBar&) = delete;

  HWND window() const { return bar_; }
  bool enabled() const { return enabled_ != 0; }
  bool hidesWithIde() const { return hide_with_ide_ != 0; }
  bool hidesWithView() const { return hide_with_view_ != 0; }
  bool alwaysOnTop() const { return always_on_top_ != 0; }
  BarConstruction construction() const { return static_cast<BarConstruction>(construction_); }
  int menuSize() const { return menu_size_; }

  // Takes construction and hiding from the settings, as a project opens.
  void readMenuSettings();
  // What the open project says of them; the settings stay as they are.
  void useConstruction(int construction) { construction_ = construction; }
  void useHidesWithView(int hides) { hide_with_view_ = hides; }

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
  int measureExpandedHeight() const;

  bool new_shell_;
  HWND bar_;
  bool expanded_ = false;
  bool placed_ = false;
  int enabled_;
  int hide_with_ide_;
  int hide_with_view_;  // in force
  int stored_hide_with_view_;
  int always_on_top_;
  int edit_other_view_;
  int left_margin_;   // pixels, may be negative
  int right_margin_;  // pixels, may be negative
  int menu_size_;     // items per column
  int construction_;  // in force
  int stored_construction_;
  int expanded_height_ = 0;  // pixels, 0 while unknown
};

extern TopBar* topBar;

}  // namespace kesto
