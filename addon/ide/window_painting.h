// Painting while something holds the user-interface thread, and painting anew.
#pragma once

#include <windows.h>

namespace kesto {

// Has uncovered windows painted; nothing else that waits in the thread's queue is looked
// at, but what other programs send does arrive, the end of the session among it. False when
// that was it: nothing that was there before may be used any more.
bool paintWindows();

// The same for loops with short turns, a few times a second.
class PaintingWatch {
 public:
  bool goOn();
  // Whether the last call had windows painted.
  bool painted() const { return painted_; }

 private:
  DWORD looked_ = 0;  // milliseconds of the system's clock
  bool painted_ = false;
};

// Has the frames of all editors drawn anew, with or without their buttons.
void repaintEditorFrames();

}  // namespace kesto
