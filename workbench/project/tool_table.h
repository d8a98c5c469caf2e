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
// Whether a file of the type is worth reading in an editor: all but what is known not to be.
bool isTextType(const std::string& type);

}  // namespace workbench
