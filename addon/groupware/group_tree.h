// The two trees of a project while a list of one of them is filled: every folder of
// either is listed once, whatever is asked of it. Made for one filling; user-interface
// thread only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "addon/foundation/folders.h"
#include "addon/foundation/name_table.h"
#include "addon/groupware/group_files.h"

namespace kesto {

// The project's directory and that of its server, full paths without a separator behind.
struct GroupRoots {
  std::string project;
  std::string server;
};

// A directory as a root: with "\" alone, and none behind.
std::string rootOf(std::string_view directory);
// The server's directory as a project names it: one that is not whole is meant from the
// project's directory on.
std::string serverDirectory(std::string_view project, std::string_view server);
// The path of a name below a root.
std::string pathBelow(std::string_view root, std::string_view name);

// The facts of what one folder holds, by names; the letters a to z fit in either case.
class FolderFacts {
 public:
  void add(std::string_view name, const FileFacts& facts);
  // To be called after the last one was added. Of two names that differ in case alone, as
  // some systems have them, one counts.
  void sort();
  // Found at once where names are asked for in their order.
  const FileFacts* find(std::string_view name);

 private:
  struct Entry {
    std::size_t name;  // where it begins
    std::size_t length;
    FileFacts facts;
  };
  std::string_view nameOf(const Entry& entry) const {
    return std::string_view(names_).substr(entry.name, entry.length);
  }

  std::string names_;
  std::vector<Entry> entries_;
  std::size_t next_ = 0;  // behind the one that was found last
};

class GroupTree : public DirectoryLister {
 public:
  class Visitor {
   public:
    virtual ~Visitor() = default;
    // A file below the root, and its copy below the other.
    virtual void visit(const char* path, const FileFacts& facts,
                       const std::optional<FileFacts>& other) = 0;
  };

  // Files below root, with their copies below other_root, which is not entered even if
  // it lies within.
  GroupTree(GroupListing& files, std::string_view root, std::string_view other_root)
      : files_(files), root_(root), other_root_(other_root) {}

  // Shows each file that one of the filters, patterns with ";" between, fits, in no
  // order and maybe more than once. Directories whose name starts with "." are left out,
  // and so are links to directories. The watch, if any, may end it.
  void scan(std::string_view filters, Visitor& visitor, WalkWatch* watch);

  void list(const char* directory, const char* mask, DirectoryEntries& entries) override;

 private:
  class Scan;
  class Listener;

  FolderFacts& factsIn(std::string_view directory);

  GroupListing& files_;
  std::string root_;
  std::string other_root_;
  NameTable<std::string, FolderFacts> folders_;  // by directory
};

}  // namespace kesto
