// A command that runs beside the program and what it writes. User-interface
// thread only; nothing here waits.
#pragma once

#include <windows.h>

#include <string>

#include "workbench/make/unix_command.h"
#include "workbench/windows/handles.h"

namespace workbench {

class BuildProcess {
 public:
  BuildProcess() = default;
  BuildProcess(const BuildProcess&) = delete;
  BuildProcess& operator=(const BuildProcess&) = delete;
  ~BuildProcess() { stop(); }

  // Starts it in the folder; false with a sentence for the user. Under Wine that may be a
  // program of the system below it: it is looked for last, unless the command starts with
  // its path.
  bool start(const std::string& command, const std::string& folder, std::string* reason);
  // Appends what has been written since, at most so many bytes.
  void read(std::size_t most, std::string* bytes);
  // Whether it has ended; its exit code, or UnixCommand::kNoProgram, is set then. What it
  // wrote may still wait.
  bool ended(DWORD* exit_code) const;
  // Ends it with all that it started.
  void stop();

 private:
  bool startMarked(const std::string& command, const std::string& folder);
  bool create(const std::string& line, const std::string& folder);

  OwnedFile process_;
  OwnedFile output_;
  OwnedFile job_;  // null where the system knows no jobs
  UnixCommand unix_;
  std::string mark_;  // the variable that its processes have in common, while it may run
};

}  // namespace workbench
