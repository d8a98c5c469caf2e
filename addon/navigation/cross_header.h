// The message that heads the references of one search.
#pragma once

#include <string>
#include <string_view>

namespace kesto {

// The frame's title gives the project's name: what follows its first "-" and blanks, up
// to the title of the maximised window that the system puts behind it (empty: there is
// none). Date and time are shown as they come.
std::string crossReferenceHeader(std::string_view frame_title, std::string_view maximised_title,
                                 std::string_view name, std::string_view date,
                                 std::string_view time, int found);

}  // namespace kesto
