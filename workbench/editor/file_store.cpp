#include "workbench/editor/file_store.h"

#include <algorithm>

#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

constexpr std::size_t kLongestPath = 259;  // bytes
constexpr int kMostLeftovers = 100;
constexpr std::string_view kAside = ".old";

// What the names of a file's temporary files begin with; a number follows. Where the
// file's own name leaves no room, a short one is made of it.
std::string temporaryPrefix(const std::string& path) {
  if (path.size() + 4 + kAside.size() <= kLongestPath) {
    return path + ".~";
  }
  std::uint32_t sum = 2166136261u;
  for (const char c : foldCase(fileName(path))) {
    sum = (sum ^ static_cast<unsigned char>(c)) * 16777619u;
  }
  std::string name = "~";
  for (int shift = 0; shift < 24; shift += 4) {
    name += "0123456789abcdef"[sum >> shift & 15u];
  }
  const std::string folder(folderOf(path));
  const std::size_t room = kLongestPath - std::min(kLongestPath, folder.size() + 3);
  return joinPath(folder,
                  name.substr(0, std::max<std::size_t>(1, std::min<std::size_t>(room, 7)))) +
         "~";
}

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

bool findFreeNames(FileStore& store, const std::string& path, std::string* temporary,
                   std::string* aside) {
  const std::string prefix = temporaryPrefix(path);
  for (int i = 0; i < kMostLeftovers; ++i) {
    *temporary = prefix + std::to_string(i);
    *aside = *temporary + std::string(kAside);
    if (!store.stamp(*temporary).exists && !store.stamp(*aside).exists) {
      return true;
    }
  }
  return false;
}

}  // namespace

FileFault saveFile(FileStore& store, const std::string& path, const std::string& bytes) {
  const FileStamp stamp = store.stamp(path);
  if (stamp.exists && stamp.read_only) {
    return FileFault::kReadOnly;
  }
  const std::string target = stamp.exists ? store.target(path) : path;
  std::string temporary;
  std::string aside;
  if (!findFreeNames(store, target, &temporary, &aside)) {
    return FileFault::kOther;
  }
  FileFault fault = store.write(temporary, bytes);
  bool begun = false;
  if (fault == FileFault::kNone && stamp.exists && store.losesByReplacing(target, temporary)) {
    fault = store.overwrite(target, bytes, &begun);
    if (fault == FileFault::kNone || !begun) {
      store.remove(temporary);
      return fault;
    }
    // Better whole without its mode than in part with it.
    fault = FileFault::kNone;
  }
  if (fault == FileFault::kNone) {
    fault = store.replace(temporary, target);
  }
  if (fault == FileFault::kNotOffered) {
    fault = replaceInSteps(store, temporary, target, aside);
  }
  if (fault != FileFault::kNone && begun) {
    return FileFault::kLeftBeside;
  }
  if (fault != FileFault::kNone) {
    store.remove(temporary);
  }
  return fault;
}

std::vector<std::string> leftoversOf(FileStore& store, const std::string& path) {
  const std::string prefix = temporaryPrefix(store.stamp(path).exists ? store.target(path) : path);
  std::vector<std::string> result;
  for (const std::string& found : store.beginningWith(prefix)) {
    std::string_view rest = std::string_view(found).substr(prefix.size());
    if (rest.ends_with(kAside)) {
      rest.remove_suffix(kAside.size());
    }
    if (!rest.empty() && rest.size() <= 2 &&
        rest.find_first_not_of("0123456789") == std::string_view::npos) {
      result.push_back(found);
    }
  }
  return result;
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
    case FileFault::kLeftBeside:
      return path +
             " could not be written whole. The text is whole beside it, in a file of that name "
             "with \".~\" and a number at its end.";
    case FileFault::kNotOffered:
    case FileFault::kOther:
      break;
  }
  return path + " could not be read or written.";
}

}  // namespace workbench
