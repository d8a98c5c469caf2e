#include "addon/navigation/include_search.h"

#include "addon/foundation/path.h"

namespace kesto {

namespace {

class HeaderSearch {
 public:
  HeaderSearch(DirectoryLister& lister, std::string_view name, String& found)
      : lister_(lister), name_(name), found_(found) {}

  // Each level adds two characters at least, so that kPathLimit bounds the depth.
  bool below(std::string_view directory) {
    if (directories_left_ == 0 || directory.size() > kPathLimit) {
      return false;
    }
    --directories_left_;
    const String path = joinPath(directory, name_);
    if (path.view().size() <= kPathLimit && lister_.isFile(path)) {
      found_ = path;
      return true;
    }
    Tableau<String> names;
    lister_.listDirectories(String(directory), names);
    for (int i = 0; i < names.count(); ++i) {
      const std::string_view name = names.at(i)->view();
      if (!name.empty() && name.front() != '.' && below(joinPath(directory, name).view())) {
        return true;
      }
    }
    return false;
  }

 private:
  DirectoryLister& lister_;
  std::string_view name_;
  String& found_;
  int directories_left_ = kDirectoryLimit;
};

}  // namespace

String includeSearchPath(std::string_view directory, std::string_view include_path) {
  String path(directory);
  if (!include_path.empty()) {
    path += ";";
    path += include_path;
  }
  return path;
}

bool findInclude(DirectoryLister& lister, std::string_view search_path, std::string_view name,
                 String& found) {
  while (!name.empty() && !search_path.empty()) {
    const std::size_t separator = search_path.find(';');
    const std::string_view directory = search_path.substr(0, separator);
    search_path.remove_prefix(separator == std::string_view::npos ? search_path.size()
                                                                  : separator + 1);
    if (!directory.empty() && HeaderSearch(lister, name, found).below(directory)) {
      return true;
    }
  }
  return false;
}

}  // namespace kesto
