// The walk of a tree: the files of a directory that fit a mask, then its directories,
// depth first. The file system is seen through two small interfaces, which
// DirectoryListing implements and the tests play.
//
// Directories that contain themselves through links end at kPathLimit characters of a
// path or after kDirectoryLimit directories of one walk, whichever comes first.
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

class MaskLister {
 public:
  virtual ~MaskLister() = default;
  // Appends the names of the files that fit the mask, in listing order, without
  // directories and volume labels.
  virtual void listFiles(const char* directory, const char* mask, Tableau<String>& names) = 0;
  // Appends the names of the directory's own directories, in listing order.
  virtual void listDirectories(const char* directory, Tableau<String>& names) = 0;
};

class FileVisitor {
 public:
  virtual ~FileVisitor() = default;
  // Returns true to end the walk.
  virtual bool visit(const char* path) = 0;
};

// Shows the visitor each file. Directories whose name starts with "." are left out;
// without recurse all are. True when the visitor ended the walk.
bool walkDirectory(MaskLister& lister, std::string_view directory, std::string_view mask,
                   bool recurse, FileVisitor& visitor);

}  // namespace kesto
