// The HTML documentation: the choices of the open project, and without one the settings of
// the user.
#pragma once

#include "addon/pages/addon_page_base.h"
#include "addon/pages/shown_project.h"

namespace kesto {

class HTMLPage : public AddonPageBase {
 public:
  explicit HTMLPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  void filled(HWND dialog) override;
  void stored(HWND dialog) override;

 private:
  ShownProject project_;
};

}  // namespace kesto
