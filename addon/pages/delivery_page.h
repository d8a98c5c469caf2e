// Whether the delivery is in the Tool menu, and where each type of the project's targets
// goes. The directories and what is active are set from the list itself.
#pragma once

#include <string>
#include <vector>

#include "addon/ide/tab_rows.h"
#include "addon/pages/addon_page_base.h"
#include "addon/pages/shown_project.h"

namespace kesto {

class DeliveryPage : public AddonPageBase {
 public:
  explicit DeliveryPage(int dialog_id);

 protected:
  void exchange(PageExchange& controls) override;
  void filled(HWND dialog) override;
  bool command(HWND dialog, int control, int notification) override;
  void stored(HWND dialog) override;

 private:
  // A group as the page shows it, until it is stored.
  struct Group {
    std::string type;
    std::string directory;
    bool active;
  };

  void placeColumns(HWND dialog);
  void show() const;
  void chooseDirectory(HWND dialog, std::size_t row);

  ShownProject project_;
  std::vector<Group> groups_;
  int stops_[2] = {};
  TabRows rows_;
  HWND list_ = nullptr;
};

}  // namespace kesto
