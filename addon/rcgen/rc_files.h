// The file system as the generator uses it: listings by DirectoryLister, and the few things
// done to a file. The shell implements it over Windows; tests play it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "addon/foundation/directory_lister.h"

namespace kesto {

struct RcFileStatus {
  std::int64_t modified;  // as fine as the system keeps it; a later time is greater
  bool is_directory;
};

class RcFiles : public DirectoryLister {
 public:
  // Nothing when the path's status cannot be read.
  virtual std::optional<RcFileStatus> status(const char* path) = 0;
  // Replaces text by the file's, in text mode. False when it cannot be read.
  virtual bool read(const char* path, std::string& text) = 0;
  // Creates or overwrites the file, in text mode. False when it cannot.
  virtual bool write(const char* path, std::string_view text) = 0;
  // Goes on after what the file holds.
  virtual bool append(const char* path, std::string_view text) = 0;
  virtual void remove(const char* path) = 0;
  // Does nothing when there is a file of the new name.
  virtual void rename(const char* path, const char* new_path) = 0;
};

}  // namespace kesto
