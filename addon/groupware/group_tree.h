// The two trees of a project while a list of one of them is filled: every folder of
// either is listed once, whatever is asked of it. Made for one filling; user-interface
// thread only.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "addon/foundation/folders.h"
#include "addon/groupware/group_files.h"

namespace kesto {

// The project's directory and that of its server, full paths without a separator behind.
struct GroupRoots {
  std::string project;
  std::string server;
};

// A directory as a root: with "\" alone, and none behind.
std::string rootOf(std::string_view directory);
// The path of a name below a root.
std::string pathBelow(std::string_view root, std::string_view name);

class GroupTree : public DirectoryLister {
 public:
  // A file below the root, with the facts of its other copy.
  class Visitor {
   public:
    virtual ~Visitor() = default;
    virtual void visit(const std::string& path, const FileFacts& facts,
                       const std::optional<FileFacts>& other) = 0;
  };

  // Files below root, with their copies below other_root, which is not entered even if
  // it lies within.
  GroupTree(GroupFiles& files, std::string_view root, std::string_view other_root)
      : files_(files), root_(root), other_root_(other_root) {}

  // Shows each file that one of the filters, patterns with ";" between, fits, in no
  // order and maybe more than once. Directories whose name starts with "." are left out,
  // and so are links to directories. The watch, if any, may end it.
  void scan(std::string_view filters, Visitor& visitor, WalkWatch* watch);

  void list(const char* directory, const char* mask, DirectoryEntries& entries) override;
  // By the listing of the file's folder; the letters a to z fit in either case.
  std::optional<FileFacts> facts(std::string_view path);

 private:
  using Listing = std::map<std::string, FileFacts, std::less<>>;  // by names in upper case
  Listing& listingOf(std::string_view directory, DirectoryEntries* entries);

  GroupFiles& files_;
  std::string root_;
  std::string other_root_;
  std::map<std::string, Listing, std::less<>> listings_;  // by directory
};

}  // namespace kesto
