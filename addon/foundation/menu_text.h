// Texts for menus. Plain code.
#pragma once

#include <string>
#include <string_view>

namespace kesto {

// The text as a menu takes it to show it as it is: a menu draws a single "&" as an
// underline below what follows.
std::string menuText(std::string_view text);

}  // namespace kesto
