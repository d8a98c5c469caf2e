// The dialogs that ask what to find and what to replace. User-interface thread only.
#pragma once

#include <windows.h>

#include <functional>

#include "workbench/app/find_request.h"

namespace workbench {

// False when the user cancelled.
bool askFind(HWND owner, FindRequest* request);

enum class ReplaceWhat { kNext, kAll, kAllSelected };

// Stays open while the user replaces; each time it fills the request and calls `replace`.
void askReplace(HWND owner, FindRequest* request, bool in_selection,
                const std::function<void(ReplaceWhat)>& replace);

}  // namespace workbench
