// The directories of this system as the add-on's walks list them, and its paths as the
// add-on joins them.
#pragma once

#include <dirent.h>
#include <fnmatch.h>

#include <algorithm>
#include <string>

#include "addon/foundation/directory_lister.h"

namespace kesto {

inline std::string nativePath(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

class PosixListing : public DirectoryLister {
 public:
  void list(const char* directory, const char* mask, DirectoryEntries& entries) override {
    DIR* const open = opendir(nativePath(directory).c_str());
    if (open == nullptr) {
      return;
    }
    while (const dirent* entry = readdir(open)) {
      const bool is_directory = entry->d_type == DT_DIR;
      if ((is_directory || entry->d_type == DT_REG) && fnmatch(mask, entry->d_name, 0) == 0) {
        entries.add(
            is_directory ? DirectoryEntries::Kind::kDirectory : DirectoryEntries::Kind::kFile,
            entry->d_name);
      }
    }
    closedir(open);
  }
};

}  // namespace kesto
