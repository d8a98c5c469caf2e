// The directories of one search: each is listed at most once however often the search
// comes by, links to directories are not followed, and all its walks together see
// kDirectoryLimit directories at most. Made for one search and gone with it; belongs to
// the thread that walks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "addon/foundation/directory_lister.h"
#include "addon/foundation/file_mask.h"
#include "addon/foundation/name_table.h"
#include "addon/foundation/string.h"

namespace kesto {

// Looks on while a search goes through directories, and may end it.
class WalkWatch {
 public:
  virtual ~WalkWatch() = default;
  // Called often: for each directory, and for each file shown to a visitor, with how many
  // there were so far. False ends the search, which does not ask again.
  virtual bool goOn(int directories, int files) = 0;
};

class Folders {
 public:
  // Both must outlive it; without a watch nothing ends the search early.
  explicit Folders(DirectoryLister& lister, WalkWatch* watch = nullptr)
      : lister_(lister), watch_(watch) {}
  Folders(const Folders&) = delete;
  Folders& operator=(const Folders&) = delete;

  // False for a directory that is left out: one directory too many, a path of more than
  // kPathLimit characters, or a search that was ended.
  bool enter(const String& directory);
  // The names of an entered directory's own directories, or files, in listing order; they
  // live as long as this. "." and ".." are no directories of it.
  std::vector<std::string_view> directories(const String& directory);
  std::vector<std::string> files(const String& directory, const FileMask& mask);
  // To be called for each file that is shown to a visitor; false when the watch ends it all.
  bool countFile();
  // Whether the watch ended the search.
  bool stopped() const { return stopped_; }

 private:
  struct Folder {
    DirectoryEntries entries;
    bool listed = false;
  };

  const DirectoryEntries& entriesOf(const String& directory);
  bool ask();

  DirectoryLister& lister_;
  WalkWatch* watch_;
  NameTable<std::string, Folder> entered_;
  int files_ = 0;
  bool stopped_ = false;
};

}  // namespace kesto
