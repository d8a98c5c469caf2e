// The add-on's small window (class "QUK") that stands in another window's caption.
// User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

// Moves the small window of the given one to the right end of its caption, left
// of the caption's own buttons. A window that has none is answered by a beep.
void placeCaptionWindow(HWND window);

}  // namespace kesto
