// The Unix mode of files under Wine, whose own calls neither tell nor set it. Any thread.
#pragma once

#include <string>

namespace workbench {

// Gives the first file the mode of the second. False when that could not be done, as on
// Windows, where files have none.
bool takeMode(const std::string& path, const std::string& other);

}  // namespace workbench
