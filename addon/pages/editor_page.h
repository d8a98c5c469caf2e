// The menus in the title bars of editors, and the searches by name.
#pragma once

#include "addon/navigation/name_matchers.h"
#include "addon/pages/addon_page_base.h"
#include "addon/pages/key_field.h"

namespace kesto {

class EditorPage : public AddonPageBase {
 public:
  explicit EditorPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  bool command(HWND dialog, int control, int notification) override;
  bool valid(HWND dialog) override;
  void stored(HWND dialog) override;

 private:
  void exchangeMenus(PageExchange& controls);
  void exchangeSearches(PageExchange& controls);

  KeyField keys_[kSearchCount];
  // Before the page was stored:
  bool was_enabled_ = false;
  bool was_left_ = false;
};

}  // namespace kesto
