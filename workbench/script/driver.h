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
  // Starts stepping; call it once the frame is shown, and before the file or folder
  // of the command line is opened, so that boxes it shows are the script's to
  // answer. The driver ends the program's message loop with PostQuitMessage(exit
  // code) when the script ends; a line that cannot be read, a failed step and a
  // frame closed too early give 1, a run that hangs 3.
  void start();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace workbench
