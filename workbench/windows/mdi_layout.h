// Laying out the children of an MDI client, as its own messages for it do. Those place
// and paint one child after the other, and so paint what each uncovers; here all are
// placed first and painted once. User-interface thread only.
#pragma once

#include <windows.h>

namespace workbench {

// Beside and above each other, the active one first; minimised ones keep the lowest rows.
void tileChildren(HWND mdi_client);
// One behind the other, the active one in front.
void cascadeChildren(HWND mdi_client);

}  // namespace workbench
