#include "addon/foundation/directory_walk.h"

#include "addon/foundation/path.h"

namespace kesto {

namespace {

class Walk {
 public:
  Walk(MaskLister& lister, std::string_view mask, bool recurse, FileVisitor& visitor)
      : lister_(lister), mask_(mask), recurse_(recurse), visitor_(visitor) {}

  // Each level adds two characters at least, so that kPathLimit bounds the depth.
  bool below(const String& directory) {
    if (directories_left_ == 0 || directory.view().size() > kPathLimit) {
      return false;
    }
    --directories_left_;
    return visitFiles(directory) || (recurse_ && visitDirectories(directory));
  }

 private:
  bool visitFiles(const String& directory) {
    Tableau<String> names;
    lister_.listFiles(directory, mask_, names);
    for (int i = 0; i < names.count(); ++i) {
      const String path = joinPath(directory.view(), names.at(i)->view());
      if (path.view().size() <= kPathLimit && visitor_.visit(path)) {
        return true;
      }
    }
    return false;
  }

  bool visitDirectories(const String& directory) {
    Tableau<String> names;
    lister_.listDirectories(directory, names);
    for (int i = 0; i < names.count(); ++i) {
      const std::string_view name = names.at(i)->view();
      if (!name.empty() && name.front() != '.' && below(joinPath(directory.view(), name))) {
        return true;
      }
    }
    return false;
  }

  MaskLister& lister_;
  String mask_;
  bool recurse_;
  FileVisitor& visitor_;
  int directories_left_ = kDirectoryLimit;
};

}  // namespace

bool walkDirectory(MaskLister& lister, std::string_view directory, std::string_view mask,
                   bool recurse, FileVisitor& visitor) {
  return Walk(lister, mask, recurse, visitor).below(String(directory));
}

}  // namespace kesto
