#include "workbench/project/folder_walk.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>
#include <utility>

#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

constexpr std::string_view kSourceExtensions[] = {
    ".cpp", ".cc",  ".cxx", ".c++", ".c",   ".h",   ".hpp", ".hh", ".hxx", ".inl", ".rh",
    ".rc",  ".dlg", ".def", ".asm", ".inc", ".txt", ".spp", ".kb", ".hpj", ".kwd",
};

constexpr std::string_view kSkippedFolders[] = {
    "build", "builds", "debug", "release", "obj", "out", "cmakefiles", "node_modules",
};

bool isSourceFile(std::string_view path) {
  const std::string extension = foldCase(extensionOf(path));
  return std::find(std::begin(kSourceExtensions), std::end(kSourceExtensions), extension) !=
         std::end(kSourceExtensions);
}

// A folder of tools' output or of version control, never of sources.
bool isSkippedFolder(std::string_view name) {
  const std::string folded = foldCase(name);
  return folded.empty() || folded[0] == '.' || folded.starts_with("cmake-build") ||
         std::find(std::begin(kSkippedFolders), std::end(kSkippedFolders), folded) !=
             std::end(kSkippedFolders);
}

class Walker {
 public:
  Walker(FolderLister& lister, const WalkLimits& limits) : lister_(lister), limits_(limits) {}

  bool walk(const std::string& path, int depth, FolderContent* content) {
    content->path = path;
    const std::uint64_t identity = lister_.identity(path);
    if (identity != 0 && !visited_.insert(identity).second) {
      return false;
    }
    std::vector<FolderEntry> entries;
    if (++folders_ > limits_.folders || !lister_.list(path, &entries)) {
      return false;
    }
    std::vector<std::pair<std::string, FolderEntry>> sorted;
    for (FolderEntry& entry : entries) {
      std::string key = foldCase(entry.name);
      sorted.emplace_back(std::move(key), std::move(entry));
    }
    std::sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
      return a.first != b.first ? a.first < b.first : a.second.name < b.second.name;
    });
    for (const auto& [key, entry] : sorted) {
      if (!entry.folder && isSourceFile(entry.name) && files_ < limits_.files) {
        ++files_;
        content->files.push_back(joinPath(path, entry.name));
      }
    }
    for (const auto& [key, entry] : sorted) {
      if (entry.folder && !entry.hidden && !isSkippedFolder(entry.name) && depth < limits_.depth) {
        FolderContent below;
        if (walk(joinPath(path, entry.name), depth + 1, &below) &&
            !(below.files.empty() && below.folders.empty())) {
          content->folders.push_back(std::move(below));
        }
      }
    }
    return true;
  }

 private:
  FolderLister& lister_;
  const WalkLimits& limits_;
  std::set<std::uint64_t> visited_;
  int folders_ = 0;
  int files_ = 0;
};

}  // namespace

bool walkFolder(FolderLister& lister, const std::string& top, const WalkLimits& limits,
                FolderContent* content) {
  return Walker(lister, limits).walk(top, 0, content);
}

}  // namespace workbench
