// A generation unit: a directory's resource scripts, and the two files of C++ classes
// made of them beside the scripts, "rc" and the unit's name with ".h" and ".cpp". The
// project's directory is the unit without a name. Any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "addon/foundation/folders.h"
#include "addon/foundation/string.h"
#include "addon/rcgen/generator_host.h"

namespace kesto {

struct ClassUnit {
  String directory;
  String name;  // empty: the project's directory
};

// A time that cannot be read is nothing. An output that is missing makes the unit out of
// date, a script without a time as well, and one that is younger than the older output.
bool isOutOfDate(std::optional<std::int64_t> header, std::optional<std::int64_t> implementation,
                 std::span<const std::optional<std::int64_t>> scripts);

// Writes both files anew when the unit is out of date, the folders listing its directory;
// where that fails both stay as they were, and the unit out of date. A script that cannot
// be read is left out.
void updateClassUnit(const GeneratorHost& host, Folders& folders, const ClassUnit& unit);

}  // namespace kesto
