// A second process of this program, for what happens between two IDEs. It is ended with
// its owner. User-interface thread only; nothing here waits.
#pragma once

#include <windows.h>

#include "workbench/windows/handles.h"

namespace workbench {

class OtherIde {
 public:
  OtherIde() = default;
  OtherIde(const OtherIde&) = delete;
  OtherIde& operator=(const OtherIde&) = delete;
  ~OtherIde() { end(); }

  // Starts it, in place of the one before, without project and script, and with this
  // program's add-on when that is wanted.
  bool start(bool with_addon);
  // Whether one of its windows is in front.
  bool inFront() const;
  bool ended() const;

 private:
  void end();

  OwnedFile process_;
  DWORD id_ = 0;
};

}  // namespace workbench
