// Pictures of the whole desktop.
#pragma once

#include <string>

namespace workbench {

// Writes a 24-bit bitmap file. Returns false when the screen cannot be read or
// the file cannot be written whole.
bool saveScreenshot(const std::string& path);

}  // namespace workbench
