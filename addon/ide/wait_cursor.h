// The hourglass as long as it lives, the arrow from then on. User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

class WaitCursor {
 public:
  WaitCursor() { SetCursor(LoadCursorA(nullptr, IDC_WAIT)); }
  ~WaitCursor() { SetCursor(LoadCursorA(nullptr, IDC_ARROW)); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace kesto
