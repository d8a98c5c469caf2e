// Keeps the columns of a popup menu on the screen where Wine does not: it cuts a popup of
// several columns that is higher than the screen, which Windows scrolls. There such a popup
// gets more and lower columns as it opens. Elsewhere, and with one column, it does nothing.
// Watches the thread it is made on, for as long as it lives; one at a time.
#pragma once

#include <windows.h>

namespace workbench {

class MenuColumns {
 public:
  MenuColumns();
  ~MenuColumns();
  MenuColumns(const MenuColumns&) = delete;
  MenuColumns& operator=(const MenuColumns&) = delete;

 private:
  HHOOK hook_ = nullptr;  // null where it is not needed
};

// Gives the popup columns of this many rows when one of its columns has more.
void fitColumns(HMENU popup, int rows);

}  // namespace workbench
