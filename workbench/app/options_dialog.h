// The options dialog: a list of topics, the program's own page first and then the
// pages of the add-ons' chapters. User-interface thread only.
#pragma once

#include <windows.h>

#include <vector>

#include "ideapi/ide_interfaces.h"

namespace workbench {

struct OptionsTopic {
  IMpdPage* page;  // the caller's reference
  bool indented;   // belongs to the chapter whose page stands above
};

// Returns true when the user left with OK; the pages have stored by then.
bool editOptionPages(HWND owner, const std::vector<OptionsTopic>& topics);

}  // namespace workbench
