#include "addon/foundation/folders.h"

#include "addon/foundation/path.h"

namespace kesto {

using Kind = DirectoryEntries::Kind;

bool Folders::enter(const String& directory) {
  const std::string_view path = directory.view();
  if (stopped_ || path.size() > kPathLimit) {
    return false;
  }
  if (entered_.find(path) == nullptr) {
    if (entered_.size() == kDirectoryLimit) {
      return false;
    }
    entered_[path];
  }
  return ask();
}

const DirectoryEntries& Folders::entriesOf(const String& directory) {
  Folder& folder = entered_[directory.view()];
  if (!folder.listed) {
    folder.listed = true;
    lister_.list(directory, "*", folder.entries);
  }
  return folder.entries;
}

std::vector<std::string_view> Folders::directories(const String& directory) {
  std::vector<std::string_view> names;
  entriesOf(directory).each([&names](Kind kind, std::string_view name, std::string_view) {
    if (kind == Kind::kDirectory && !name.empty() && name != "." && name != "..") {
      names.push_back(name);
    }
  });
  return names;
}

std::vector<std::string> Folders::files(const String& directory, const FileMask& mask) {
  std::vector<std::string> names;
  if (mask.plain()) {
    entriesOf(directory).each([&](Kind kind, std::string_view name, std::string_view short_name) {
      if (kind == Kind::kFile &&
          (mask.fits(name) || (!short_name.empty() && mask.fits(short_name)))) {
        names.emplace_back(name);
      }
    });
    return names;
  }
  DirectoryEntries fitting;
  lister_.list(directory, mask.text().c_str(), fitting);
  fitting.each([&names](Kind kind, std::string_view name, std::string_view) {
    if (kind == Kind::kFile) {
      names.emplace_back(name);
    }
  });
  return names;
}

bool Folders::countFile() {
  ++files_;
  return ask();
}

bool Folders::ask() {
  stopped_ =
      stopped_ || (watch_ != nullptr && !watch_->goOn(static_cast<int>(entered_.size()), files_));
  return !stopped_;
}

}  // namespace kesto
