// Groupware: the settings of the user, and the server directory of the open project.
#pragma once

#include "addon/pages/addon_page_base.h"
#include "addon/pages/shown_project.h"

namespace kesto {

class GroupwarePage : public AddonPageBase {
 public:
  explicit GroupwarePage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  bool command(HWND dialog, int control, int notification) override;
  void stored(HWND dialog) override;

 private:
  ShownProject project_;
};

}  // namespace kesto
