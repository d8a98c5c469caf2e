// Message boxes of the program. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

// Asks in front of whatever the frame waits for, and returns the button. 0, without an
// answer, when the program ended meanwhile or had ended before: then nothing that the
// caller knew of may be there any more.
int showBox(HWND frame, const std::string& text, UINT buttons);

}  // namespace workbench
