// Runs a script of verbs against the Workbench. Steps run off a timer, so they
// go on inside menus, dialogs and message boxes. User-interface thread only.
#pragma once

#include <memory>
#include <string>

namespace workbench {

class Workbench;

class ScriptDriver {
 public:
  // The workbench must outlive the driver.
  explicit ScriptDriver(Workbench& workbench);
  ~ScriptDriver();
  ScriptDriver(const ScriptDriver&) = delete;
  ScriptDriver& operator=(const ScriptDriver&) = delete;

  // Reads the script from a file, or from standard input for "-". Returns false
  // when it cannot be read.
  bool load(const std::string& path);
  // Starts stepping; call it once the frame is shown. The driver ends the program's
  // message loop with PostQuitMessage(exit code) when the script ends.
  void start();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace workbench
