// The add-on's settings in the registry, where a script reads and writes them.
#pragma once

#include <string>

namespace workbench {

// A section may hold a backslash. Values are strings. The functions return false
// when the value or section is missing, or cannot be written.
bool readSetting(const std::string& section, const std::string& name, std::string* text);
bool writeSetting(const std::string& section, const std::string& name, const std::string& text);
// Removing what is not there succeeds.
bool deleteSetting(const std::string& section, const std::string& name);
bool deleteSection(const std::string& section);

}  // namespace workbench
