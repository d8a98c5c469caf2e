// As much of a dialog framework as the generated classes ask for: they compile and link
// against it. Not the framework itself.
#pragma once

#include <windows.h>

#include <commctrl.h>

class Dialog {
 public:
  virtual ~Dialog() {}
  virtual int wmCommand(int, int) { return 0; }
  virtual void wmNotify(NMHDR*) {}
  void End(int) {}
};

struct Control {
  void Get(Dialog*, int) {}
};

struct CheckBox : Control {};
struct Radio : Control {};
struct Edit : Control {};
struct List : Control {};
struct ComboBox : Control {};
struct ListView : Control {};
struct StatusBar : Control {};
struct ToolBar : Control {};
struct Progress : Control {};
struct TrackBar : Control {};
struct TabControl : Control {};
struct TreeView : Control {};

// Stands once in a program, as its entry.
#define RCRCMAIN \
  int main() {   \
    return 0;    \
  }
