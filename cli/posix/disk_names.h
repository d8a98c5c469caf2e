// Paths of this system and the same paths as the core has them: in Windows-1252, with "\",
// below the drive "Z:", where Wine has the root. What Windows-1252 does not have, what is no
// UTF-8, and "\" in a name stand there as "%" and two digits a byte, and are remembered.
// Like Windows, the core finds a name whatever the case of its letters: this looks for it.
// One user, no locking.
#pragma once

#include <cerrno>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kesto::cli {

class DiskNames {
 public:
  // A whole path, "." and ".." taken out; one that is not whole starts at the current
  // directory. Empty, and errno set, for one that is empty or starts where nothing is.
  std::string corePath(std::string_view disk);
  std::string coreName(std::string_view disk_name);
  // The path as the core writes it, not looked up; empty for none or one on another drive. One
  // with "/" instead of a drive is taken as well.
  std::string diskPath(std::string_view core) const;
  // The path of what is there under that name, or, where nothing is, of what can be made.
  std::string find(std::string_view core);
  // Takes a step with the path as it is written and, where nothing is there, with that of
  // what is. The step yields whether it was done, and sets errno otherwise.
  template <class Step>
  bool onDisk(std::string_view core, const Step& step) {
    const std::string path = diskPath(core);
    if (step(path)) {
      return true;
    }
    if (errno != ENOENT) {
      return false;
    }
    const std::string found = find(core);
    errno = ENOENT;
    return found != path && step(found);
  }

  // To be called of what this process has made, and of what it has taken away.
  void made(const std::string& disk_path);
  void gone(const std::string& disk_path);

 private:
  using Names = std::unordered_map<std::string, std::string>;  // by their letters in one case

  std::string diskName(std::string_view core_name) const;
  std::string findExisting(const std::string& disk_path);
  Names& namesIn(const std::string& directory);

  std::unordered_map<std::string, std::string> strange_;  // by what stands for them
  std::unordered_map<std::string, Names> known_;          // by directory
};

}  // namespace kesto::cli
