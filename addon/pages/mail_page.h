// Whether mails are shown before they go, and who gets those of the open project. The list
// can be copied and pasted into that of another project.
#pragma once

#include "addon/pages/addon_page_base.h"
#include "addon/pages/shown_project.h"

namespace kesto {

class MailPage : public AddonPageBase {
 public:
  explicit MailPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  void filled(HWND dialog) override;
  bool command(HWND dialog, int control, int notification) override;
  void stored(HWND dialog) override;

 private:
  void press(HWND dialog, int button);
  void insertAfterSelected(HWND dialog, const char* text);
  void removeSelected(HWND dialog);
  void replaceSelected(HWND dialog);
  static void copy(HWND dialog);
  void paste(HWND dialog);
  void select(HWND dialog, int row);

  ShownProject project_;
  bool showing_ = false;  // the field is being given a row's text
};

}  // namespace kesto
