// The texts of the classes of one unit: a class a dialog, with a member a control and a
// stub to override for every control and menu item, and the macros of the menus. Appends
// to the two texts, which must outlive it. Any thread.
//
// The framework declares what they rely on: Dialog with wmCommand, wmNotify and End, the
// classes of the controls with Get, and RCRCMAIN.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "addon/rcgen/rc_tables.h"

namespace kesto {

// Told after each dialog: whoever holds the texts may empty them.
class DialogDrain {
 public:
  virtual ~DialogDrain() = default;
  virtual void dialogWritten() = 0;
};

class DialogEmitter {
 public:
  DialogEmitter(std::string& header, std::string& implementation, DialogDrain* drain = nullptr)
      : header_(header), implementation_(implementation), drain_(drain) {}

  // Once a script, before its dialogs; also when it has no items.
  void menuMacros(std::span<const RcMenuItem> items);
  void openDialog(std::string_view name);
  // items: those of the whole script.
  void closeDialog(const RcDialog& dialog, std::span<const RcMenuItem> items);

 private:
  void initialisation(const RcDialog& dialog);
  void controlStubs(const RcDialog& dialog);
  void menuStubs(const RcDialog& dialog, std::span<const RcMenuItem> items);
  void commandSwitch(const RcDialog& dialog, std::span<const RcMenuItem> items);
  void notificationSwitch(const RcDialog& dialog);

  std::string& header_;
  std::string& implementation_;
  DialogDrain* drain_;
};

}  // namespace kesto
