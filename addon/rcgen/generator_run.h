// What the generator does at the start of a make, in its order. Any thread.
#pragma once

#include <cstdint>
#include <string_view>

#include "addon/foundation/folders.h"
#include "addon/rcgen/generator_host.h"

namespace kesto {

struct GeneratorSwitches {
  bool dialog_classes;
  bool version_stamping;
};

// Updates the class files of the project directory's own directories, then those of the
// project directory itself, then stamps the version files of the whole tree, each as far
// as it is switched on. build_number rises by one, and further where a file asks for it. What
// the watch ends leaves the units and files that were not come to as they are.
void runGenerator(const GeneratorHost& host, std::string_view project_directory,
                  GeneratorSwitches switches, std::int32_t& build_number,
                  WalkWatch* watch = nullptr);

}  // namespace kesto
