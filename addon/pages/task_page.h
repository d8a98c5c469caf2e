// What the flash shows of the tasks, what happens when one ends, and their types.
#pragma once

#include "addon/pages/addon_page_base.h"

namespace kesto {

class TaskPage : public AddonPageBase {
 public:
  explicit TaskPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  void stored(HWND dialog) override;
};

}  // namespace kesto
