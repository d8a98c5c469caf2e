// A command that runs beside the program and what it writes. User-interface
// thread only; nothing here waits.
#pragma once

#include <windows.h>

#include <string>

#include "workbench/windows/handles.h"

namespace workbench {

class BuildProcess {
 public:
  BuildProcess() = default;
  BuildProcess(const BuildProcess&) = delete;
  BuildProcess& operator=(const BuildProcess&) = delete;
  ~BuildProcess() { stop(); }

  // Starts it in the folder; false with a sentence for the user.
  bool start(const std::string& command, const std::string& folder, std::string* reason);
  // Appends what has been written since, at most so many bytes.
  void read(std::size_t most, std::string* bytes);
  // Whether it has ended; its exit code is set then. What it wrote may still wait.
  bool ended(DWORD* exit_code) const;
  // Ends it with all that it started.
  void stop();

 private:
  bool create(const std::string& line, const std::string& folder);

  OwnedFile process_;
  OwnedFile output_;
  OwnedFile job_;  // null where the system knows no jobs
};

}  // namespace workbench
