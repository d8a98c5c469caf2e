// The commands of the editor title bars: popups, and what is chosen from them.
// Each works on the editor that the hooks recorded last. User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

// Each shows its popup at the click and returns once it is closed. False when
// there was nothing to show; the scan has then said so on the status line.
bool showFunctionsPopup(HWND bar);
bool showIncludesPopup(HWND bar);
bool showQuickFindPopup(HWND bar);
bool showDocumentationPopup(HWND bar);

// Puts the editor on the line of an entry of the last functions popup; an index
// outside it does nothing. Always true.
bool chooseFunction(int index);
// Finds and opens the header of an entry of the last includes popup. Always true.
bool chooseInclude(int index);
// Opens the documentation text of the file whose title was right-clicked. Always true.
bool editDocumentation();

}  // namespace kesto
