// What heads a list in the message window: the project as the frame shows it, and the
// system's own date and time formats, whatever the user set up. User-interface thread only.
#pragma once

#include <string>

namespace kesto {

std::string frameProject();
std::string currentDate();
std::string currentTime();

}  // namespace kesto
