// The menus of the bar: rebuilt from scratch whenever the project, the options or the
// project view change. One object, created and destroyed with the bar's settings;
// user-interface thread only.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "addon/topbar/bar_menu_plan.h"

namespace kesto {

// What the menus ask of features; as it stands, of features that are not there.
class MenuFeatures {
 public:
  virtual ~MenuFeatures() = default;
  virtual bool groupwareActive() const { return false; }
  virtual bool htmlActive() const { return false; }
  // Offers a new node for the project, next to this one.
  virtual void quickAdd(unsigned /*node*/) {}
};

class BarMenu {
 public:
  BarMenu(HWND bar, MenuFeatures& features) : bar_(bar), features_(features) {}
  BarMenu(const BarMenu&) = delete;
  BarMenu& operator=(const BarMenu&) = delete;

  // While one of the bar's menus is open they stay; the rebuild follows its closing.
  void rebuild();
  // By a command to the bar, one for all that ask before it comes.
  void rebuildSoon();
  // One of the bar's menus was opened or closed by the user.
  void menuOpened(bool open);
  // The node has a new name: its item or popup takes it.
  void nodeChanged(unsigned node, const char* name);

  // The node of tool or project file n, 0 out of range.
  unsigned tool(int n) const;
  unsigned file(int n) const;
  // As the user reads them; out of range and for nodes that are gone other words.
  std::string toolName(int n) const;
  std::string fileName(int n) const;

  MenuFeatures& features() { return features_; }

 private:
  HMENU build(int popup);
  HMENU menuAt(int popup) const;

  HWND bar_;
  MenuFeatures& features_;
  BarMenuPlan plan_;
  std::vector<HMENU> menus_;  // of the plan's popups, null where none was created
  bool open_ = false;
  bool rebuild_due_ = false;     // when the open menu has closed
  bool rebuild_posted_ = false;  // and not come yet
};

extern BarMenu* barMenu;

}  // namespace kesto
