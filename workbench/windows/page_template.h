// Dialog templates of option pages, made fit to stand inside another dialog.
#pragma once

#include <windows.h>

#include <vector>

namespace workbench {

// Copies a module's dialog template with the styles of a child window. False when
// the module has no such dialog.
bool childTemplate(HINSTANCE module, int dialog_id, std::vector<char>* data);

}  // namespace workbench
