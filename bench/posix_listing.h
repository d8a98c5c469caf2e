// The directories of this system as the add-on's walks list them, and its paths as the
// add-on joins them.
#pragma once

#include <dirent.h>
#include <fnmatch.h>

#include <algorithm>
#include <string>

#include "addon/foundation/directory_walk.h"

namespace kesto {

inline std::string nativePath(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

class PosixListing : public MaskLister {
 public:
  void listFiles(const char* directory, const char* mask, Tableau<String>& names) override {
    list(directory, DT_REG, mask, names);
  }
  void listDirectories(const char* directory, Tableau<String>& names) override {
    list(directory, DT_DIR, "*", names);
  }

 private:
  static void list(const char* directory, int type, const char* mask, Tableau<String>& names) {
    DIR* const open = opendir(nativePath(directory).c_str());
    if (open == nullptr) {
      return;
    }
    while (const dirent* entry = readdir(open)) {
      if (entry->d_type == type && fnmatch(mask, entry->d_name, 0) == 0) {
        names.append(new String(entry->d_name));
      }
    }
    closedir(open);
  }
};

}  // namespace kesto
