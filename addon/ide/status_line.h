// The IDE's status line, and the beep that goes with some of its texts.
// User-interface thread only.
#pragma once

namespace kesto {

// Shows the text; nothing happens when the IDE has no status line.
void showStatus(const char* text);
// The tone of a search that ended.
void soundBeep();

}  // namespace kesto
