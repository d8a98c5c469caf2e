// The chapter's own page: which version this is, and on what system it runs.
#pragma once

#include "addon/pages/addon_page_base.h"

namespace kesto {

class FirstPage : public AddonPageBase {
 public:
  explicit FirstPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
};

}  // namespace kesto
