// The walk of a tree: the files of a directory that fit a mask, then its directories,
// depth first. Any thread.
#pragma once

#include <string_view>

#include "addon/foundation/folders.h"

namespace kesto {

class FileVisitor {
 public:
  virtual ~FileVisitor() = default;
  // Returns true to end the walk.
  virtual bool visit(const char* path) = 0;
};

// Shows the visitor each file. Directories whose name starts with "." are left out;
// without recurse all are. True when the visitor or the watch of the folders ended it.
bool walkDirectory(Folders& folders, std::string_view directory, std::string_view mask,
                   bool recurse, FileVisitor& visitor);

}  // namespace kesto
