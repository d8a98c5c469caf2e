// What a Make of the open project generates from its resource scripts.
#pragma once

#include "addon/pages/addon_page_base.h"
#include "addon/pages/shown_project.h"

namespace kesto {

class KestoWindowsPage : public AddonPageBase {
 public:
  explicit KestoWindowsPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  void stored(HWND dialog) override;

 private:
  ShownProject project_;
};

}  // namespace kesto
