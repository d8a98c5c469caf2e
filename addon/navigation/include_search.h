// Finding a header on the search path: each directory, then all below it, depth
// first. The file system is seen through Folders and FileLookup.
#pragma once

#include <string_view>

#include "addon/foundation/folders.h"
#include "addon/foundation/string.h"

namespace kesto {

// The search path: the directory and, after a ";", the include path unless empty.
String includeSearchPath(std::string_view directory, std::string_view include_path);

// Looks for the name in the directories of a ";" list. True when found, with its
// path in found; else found is untouched.
bool findInclude(Folders& folders, FileLookup& lookup, std::string_view search_path,
                 std::string_view name, String& found);

}  // namespace kesto
