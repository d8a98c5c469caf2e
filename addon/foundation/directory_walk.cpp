#include "addon/foundation/directory_walk.h"

#include "addon/foundation/path.h"

namespace kesto {

namespace {

class Walk {
 public:
  Walk(Folders& folders, std::string_view mask, bool recurse, FileVisitor& visitor)
      : folders_(folders), mask_(mask), recurse_(recurse), visitor_(visitor) {}

  // Each level adds two characters at least, so that kPathLimit bounds the depth.
  bool below(const String& directory) {
    if (!folders_.enter(directory)) {
      return folders_.stopped();
    }
    return visitFiles(directory) || (recurse_ && visitDirectories(directory));
  }

 private:
  bool visitFiles(const String& directory) {
    for (const std::string& name : folders_.files(directory, mask_)) {
      const String path = joinPath(directory.view(), name);
      if (path.view().size() <= kPathLimit && (visitor_.visit(path) || !folders_.countFile())) {
        return true;
      }
    }
    return false;
  }

  bool visitDirectories(const String& directory) {
    for (const std::string_view name : folders_.directories(directory)) {
      if (!name.starts_with('.') && below(joinPath(directory.view(), name))) {
        return true;
      }
    }
    return false;
  }

  Folders& folders_;
  FileMask mask_;
  bool recurse_;
  FileVisitor& visitor_;
};

}  // namespace

bool walkDirectory(Folders& folders, std::string_view directory, std::string_view mask,
                   bool recurse, FileVisitor& visitor) {
  return Walk(folders, mask, recurse, visitor).below(String(directory));
}

}  // namespace kesto
