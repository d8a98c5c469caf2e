#include "addon/navigation/include_search.h"

#include "addon/foundation/path.h"

namespace kesto {

namespace {

class HeaderSearch {
 public:
  HeaderSearch(Folders& folders, FileLookup& lookup, std::string_view name, String& found)
      : folders_(folders), lookup_(lookup), name_(name), found_(found) {}

  // A directory that stands on the path itself is looked into however many were before.
  bool from(const String& directory) {
    const bool entered = folders_.enter(directory);
    return !folders_.stopped() && (holds(directory) || (entered && below(directory)));
  }

 private:
  bool holds(const String& directory) {
    const String path = joinPath(directory.view(), name_);
    if (path.view().size() > kPathLimit || !lookup_.isFile(path)) {
      return false;
    }
    found_ = path;
    return true;
  }

  // Each level adds two characters at least, so that kPathLimit bounds the depth.
  bool below(const String& directory) {
    for (const std::string_view name : folders_.directories(directory)) {
      const String path = joinPath(directory.view(), name);
      if (!name.starts_with('.') && folders_.enter(path) && (holds(path) || below(path))) {
        return true;
      }
    }
    return false;
  }

  Folders& folders_;
  FileLookup& lookup_;
  std::string_view name_;
  String& found_;
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

bool findInclude(Folders& folders, FileLookup& lookup, std::string_view search_path,
                 std::string_view name, String& found) {
  HeaderSearch search(folders, lookup, name, found);
  while (!name.empty() && !search_path.empty()) {
    const std::size_t separator = search_path.find(';');
    const std::string_view directory = search_path.substr(0, separator);
    search_path.remove_prefix(separator == std::string_view::npos ? search_path.size()
                                                                  : separator + 1);
    if (!directory.empty() && search.from(String(directory))) {
      return true;
    }
  }
  return false;
}

}  // namespace kesto
