// Under Wine, a command of the system below it, which Windows can start and no more: its
// shell runs it, its output goes through a file, and its end is told by another.
// User-interface thread only; nothing here waits.
#pragma once

#include <windows.h>

#include <string>

#include "workbench/windows/handles.h"

namespace workbench {

class UnixCommand {
 public:
  // What a command ends with whose program there is not.
  static constexpr DWORD kNoProgram = ~0u;

  UnixCommand() = default;
  UnixCommand(const UnixCommand&) = delete;
  UnixCommand& operator=(const UnixCommand&) = delete;
  ~UnixCommand() { close(); }

  // Whether there is such a system.
  static bool possible();
  // The system's name of a file, empty when it has none.
  static std::string nameOf(const std::string& path);
  // Ends all processes that have this text, "NAME=VALUE", in their environment. It takes a
  // second for those that do not want to, beside the program.
  static void endAllWith(const std::string& variable);

  // Starts it in the folder. The program is what has to be there for it. False, with the
  // last error set, when it cannot be started.
  bool start(const std::string& command, const std::string& program, const std::string& folder);
  bool started() const { return static_cast<bool>(output_); }
  // Appends what has been written since, at most so many bytes.
  void read(std::size_t most, std::string* bytes);
  // Whether it has ended; its exit code is set then.
  bool ended(DWORD* exit_code) const;
  // So much was written that the disk would fill before it could be read.
  bool floods() const;
  // Forgets it. Its processes are not ended by that.
  void close();

 private:
  static OwnedFile scratchFile(std::string* path);

  std::string output_path_;
  std::string state_path_;
  OwnedFile output_;
  OwnedFile state_;
  DWORD read_ = 0;  // bytes
};

}  // namespace workbench
