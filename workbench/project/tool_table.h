// Which tool opens what. Plain functions, any thread.
#pragma once

#include <string>

namespace workbench {

inline constexpr char kEditTool[] = "EditText";

// The IDE's own tools.
inline constexpr const char* kOwnTools[] = {
    kEditTool,      "Project",        "RunExecutable",  "ClassExpert",
    "EditResource", "EditBitmapFile", "EditCursorFile", "EditIconFile",
};

// The tool of a node's type: null for a container that is not a file.
const char* toolForType(const std::string& type);

}  // namespace workbench
