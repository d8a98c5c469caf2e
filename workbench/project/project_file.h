// The project file (".ide") as text: reading and writing. What the reader does
// not understand it keeps, and the writer puts it back where it stood. Its layout
// is described in docs/project-file.md. Plain functions, any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "workbench/project/project_tree.h"

namespace workbench {

// The largest file that is read, in bytes.
inline constexpr std::uint64_t kLargestProjectFile = 64u << 20;

// Why a file is refused.
struct ProjectFault {
  int line = 0;        // 1-based
  std::string reason;  // a sentence
};

// Reads the bytes of a project file that lies in the folder, which the paths of
// its nodes start from. The tree's last_id stays in use: ids go on from it. On
// failure returns false, and the tree is not to be used.
bool readProjectFile(std::string_view bytes, const std::string& folder, ProjectTree* tree,
                     ProjectFault* fault);

// Paths below the folder are written from it on.
std::string writeProjectFile(const ProjectTree& tree, const std::string& folder);

}  // namespace workbench
