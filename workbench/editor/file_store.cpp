#include "workbench/editor/file_store.h"

namespace workbench {

FileFault saveFile(FileStore& store, const std::string& path, const std::string& bytes) {
  const FileStamp stamp = store.stamp(path);
  if (stamp.exists && stamp.read_only) {
    return FileFault::kReadOnly;
  }
  std::string temporary;
  for (int i = 0; i < 100; ++i) {
    temporary = path + ".~" + std::to_string(i);
    if (!store.stamp(temporary).exists) {
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
    case FileFault::kOther:
      break;
  }
  return path + " could not be read or written.";
}

}  // namespace workbench
