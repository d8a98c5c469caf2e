// What the title of the IDE's frame tells. Plain code.
#pragma once

#include <string_view>

namespace kesto {

// The project's name: what follows the first "-" and blanks, up to the title of the
// maximised window that the system puts behind it (empty: there is none).
std::string_view projectOfTitle(std::string_view frame_title, std::string_view maximised_title);

}  // namespace kesto
