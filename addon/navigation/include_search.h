// Finding a header on the search path: each directory, then all below it, depth
// first. The file system is seen through DirectoryLister, which the shell
// implements and the tests play.
//
// Directories that contain themselves through links end at kPathLimit characters
// or after kDirectoryLimit directories, whichever comes first.
#pragma once

#include <string_view>

#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"

namespace kesto {

class DirectoryLister {
 public:
  virtual ~DirectoryLister() = default;
  // True for an existing path that is not a directory: a directory named like a
  // header is searched, and is no answer.
  virtual bool isFile(const char* path) = 0;
  // Appends the names of the directory's own directories, in listing order; the
  // directory's name is not empty.
  virtual void listDirectories(const char* directory, Tableau<String>& names) = 0;
};

// The search path: the directory and, after a ";", the include path unless empty.
String includeSearchPath(std::string_view directory, std::string_view include_path);

// Looks for the name in the directories of a ";" list. True when found, with its
// path in found; else found is untouched.
bool findInclude(DirectoryLister& lister, std::string_view search_path, std::string_view name,
                 String& found);

}  // namespace kesto
