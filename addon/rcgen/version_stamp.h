// The stamping of version resources: each Make gives every VERSION.RC of the project's
// tree the next build number. Any thread.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "addon/foundation/folders.h"
#include "addon/foundation/string.h"
#include "addon/rcgen/generator_host.h"

namespace kesto {

// Numbers wrap around in 32 bits.
std::int32_t nextNumber(std::int32_t number);

// The text with the build number in its FILEVERSION statement and its "FileVersion"
// value. A text of that number or a higher one takes the number after its own, and
// build_number with it.
std::string stampVersion(std::string_view text, std::int32_t& build_number);

// Stamps the version file of each directory of the tree, those below a directory before
// its own. The first text of each stays beside it as VERSION.BAK, from which every later
// one is made. A text that goes lost to a VERSION.BAK without a version is kept once, as
// VERSION.OLD. What is UTF-16 is left alone. Nothing is told of what fails.
void stampVersions(const GeneratorHost& host, Folders& folders, const String& directory,
                   std::int32_t& build_number);

}  // namespace kesto
