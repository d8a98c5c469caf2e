// What relative paths start from. User-interface thread only.
#pragma once

#include <string>

namespace workbench {

class Paths {
 public:
  // The project's folder without a trailing separator, else the current directory.
  virtual std::string projectDirectory() = 0;
  // A full path from one that may be relative to projectDirectory().
  virtual std::string resolve(const std::string& path) = 0;

 protected:
  ~Paths() = default;
};

}  // namespace workbench
