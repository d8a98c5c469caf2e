// The system that the commands run on: its files as the core sees them, its names, its
// terminal. One made at the start and gone with the program; one user.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "addon/foundation/directory_lister.h"
#include "addon/foundation/file_system.h"
#include "addon/groupware/group_files.h"
#include "addon/tasks/task_date.h"

namespace kesto::cli {

class System {
 public:
  virtual ~System() = default;
  virtual DirectoryLister& lister() = 0;
  virtual FileSystem& files() = 0;
  virtual GroupListing& group() = 0;

  // Between the names of a path as a person reads it.
  virtual char separator() const = 0;
  // Whether names and what is written to a terminal are UTF-8, else Windows-1252.
  virtual bool isUtf8() const = 0;
  // A whole path, as the core has it, of one that a person gave; empty when it has none.
  virtual std::string corePath(std::string_view given) = 0;
  // The same path as the system and a person have it; empty when it has none.
  virtual std::string diskPath(std::string_view core) = 0;
  // The file's bytes, which live until the next call. False when it cannot be read.
  virtual bool readBytes(const char* core, std::string_view& bytes) = 0;

  virtual TaskDate utcToday() = 0;
  virtual bool isTerminal(FILE* stream) = 0;
  // Why the latest step failed, in a few words.
  virtual std::string reason() = 0;
};

// Gives the standard streams their place, so that no file takes it, and keeps them to bytes.
std::unique_ptr<System> openSystem();

}  // namespace kesto::cli
