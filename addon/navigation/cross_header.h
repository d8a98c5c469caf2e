// The message that heads the references of one search.
#pragma once

#include <string>
#include <string_view>

namespace kesto {

// The project is what the frame's title tells of it. Date and time are shown as they come.
std::string crossReferenceHeader(std::string_view project, std::string_view name,
                                 std::string_view date, std::string_view time, int found);

}  // namespace kesto
