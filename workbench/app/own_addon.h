// Which add-on the Workbench starts with when it is not told one. Values, no ownership.
#pragma once

#include <string>

namespace workbench {

// The module beside the program; or else the one that the registry names to the IDE. Empty
// when there is neither.
std::string ownAddon();

}  // namespace workbench
