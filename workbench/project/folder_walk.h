// Finds the source files of a folder and its sub-folders. Bounded: depth, folders
// and files have limits, and a folder reached twice through links is walked once.
// The lister is the seam to the disk. Plain values, one thread.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace workbench {

struct FolderEntry {
  std::string name;
  bool folder = false;
  bool hidden = false;
};

class FolderLister {
 public:
  virtual ~FolderLister() = default;
  // Without "." and ".."; false when the folder cannot be read.
  virtual bool list(const std::string& folder, std::vector<FolderEntry>* entries) = 0;
  // The same number for the same folder however it is reached; 0 when unknown.
  virtual std::uint64_t identity(const std::string& folder) = 0;
};

// What a folder holds, each list in the order of the names without regard to case.
struct FolderContent {
  std::string path;
  std::vector<std::string> files;      // full paths
  std::vector<FolderContent> folders;  // those with a source somewhere below
};

struct WalkLimits {
  int depth = 16;  // the top folder is depth 0
  int folders = 4000;
  int files = 20000;
};

// False when the top folder cannot be read.
bool walkFolder(FolderLister& lister, const std::string& top, const WalkLimits& limits,
                FolderContent* content);

}  // namespace workbench
