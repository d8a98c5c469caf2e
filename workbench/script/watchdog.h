// Ends a run that hangs. A thread of its own watches the user-interface thread,
// which a hung add-on would keep from ever reaching its timer.
#pragma once

#include <windows.h>

#include <atomic>

namespace workbench {

// Used from the user-interface thread. There is one a program; it lasts until the
// process ends, so that a hang on the way out is noticed too.
class Watchdog {
 public:
  static Watchdog& instance();

  void start();
  // The script gets on; this line comes next.
  void progress(int line);
  // Something goes on, such as an add-on that tells what its own end is waiting for.
  void alive();
  // The script has ended: the process must be gone soon, with this exit code.
  void ending(int exit_code);

 private:
  static DWORD WINAPI run(LPVOID data);
  void check();

  std::atomic<DWORD> last_{0};  // milliseconds, as GetTickCount
  std::atomic<int> line_{0};
  std::atomic<bool> ending_{false};
  std::atomic<int> exit_code_{0};
};

}  // namespace workbench
