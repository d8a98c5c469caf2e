// The top screen bar, its menus and its lists of recent files.
#pragma once

#include "addon/pages/addon_page_base.h"
#include "addon/topbar/top_bar.h"

namespace kesto {

class TopMenuPage : public AddonPageBase {
 public:
  explicit TopMenuPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  void stored(HWND dialog) override;

 private:
  static void exchangeBar(PageExchange& controls);
  void exchangeMenus(PageExchange& controls);
  static void exchangeFiles(PageExchange& controls);

  struct ShownMenus {
    int construction;
    int hides_with_view;
  };

  ShownMenus menus_ = {};     // as they were shown or stored last
  TopBar::Look before_ = {};  // the page was stored
};

}  // namespace kesto
