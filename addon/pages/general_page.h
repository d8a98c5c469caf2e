// The conveniences around the IDE's own windows.
#pragma once

#include "addon/pages/addon_page_base.h"

namespace kesto {

class GeneralPage : public AddonPageBase {
 public:
  explicit GeneralPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  bool valid(HWND dialog) override;
  void stored(HWND dialog) override;
};

}  // namespace kesto
