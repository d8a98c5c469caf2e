#include "workbench/editor/file_store.h"

#include <algorithm>

namespace workbench {
namespace {

// Where the system has no replacing move (Windows 95), the old file steps aside and
// comes back when the new one cannot take its place.
FileFault replaceInSteps(FileStore& store, const std::string& from, const std::string& to,
                         const std::string& aside) {
  const bool there = store.stamp(to).exists;
  FileFault fault = there ? store.move(to, aside) : FileFault::kNone;
  if (fault != FileFault::kNone) {
    return fault;
  }
  fault = store.move(from, to);
  if (!there) {
    return fault;
  }
  if (fault == FileFault::kNone) {
    store.remove(aside);
    return fault;
  }
  return store.move(aside, to) == FileFault::kNone ? fault : FileFault::kLeftAside;
}

// What begins the names of files beside the path: the path, cut where they would be too
// long for the system, but not in its folders.
std::string besidePath(const std::string& path) {
  constexpr std::size_t kLongestPath = 259;
  constexpr std::size_t kLongestEnding = sizeof ".~99.old" - 1;
  const std::size_t name = path.find_last_of("\\/") + 1;
  return path.substr(0, std::max(name, std::min(path.size(), kLongestPath - kLongestEnding)));
}

}  // namespace

FileFault saveFile(FileStore& store, const std::string& path, const std::string& bytes) {
  const FileStamp stamp = store.stamp(path);
  if (stamp.exists && stamp.read_only) {
    return FileFault::kReadOnly;
  }
  const std::string beside = besidePath(path);
  std::string temporary;
  std::string aside;
  for (int i = 0; i < 100; ++i) {
    temporary = beside + ".~" + std::to_string(i);
    aside = temporary + ".old";
    if (!store.stamp(temporary).exists && !store.stamp(aside).exists) {
      break;
    }
    temporary.clear();
  }
  if (temporary.empty()) {
    return FileFault::kOther;
  }
  FileFault fault = store.write(temporary, bytes);
  if (fault == FileFault::kNone) {
    fault = store.replace(temporary, path);
  }
  if (fault == FileFault::kNotOffered) {
    fault = replaceInSteps(store, temporary, path, aside);
  }
  if (fault != FileFault::kNone) {
    store.remove(temporary);
  }
  return fault;
}

std::string describeFault(FileFault fault, const std::string& path) {
  switch (fault) {
    case FileFault::kNone:
      return {};
    case FileFault::kMissing:
      return path + " does not exist.";
    case FileFault::kIsFolder:
      return path + " is a folder.";
    case FileFault::kDenied:
      return "Access to " + path + " is denied.";
    case FileFault::kTooLarge:
      return path + " is too large for an editor.";
    case FileFault::kReadOnly:
      return path + " is read-only.";
    case FileFault::kDiskFull:
      return "There is no room on the disk for " + path + ".";
    case FileFault::kLeftAside:
      return path +
             " could not be put in its place. What it held is beside it, in a file of that " +
             "name with \".old\" at its end.";
    case FileFault::kNotOffered:
    case FileFault::kOther:
      break;
  }
  return path + " could not be read or written.";
}

}  // namespace workbench
