// Texts as they are shown and as they stand in JSON. What is UTF-8 stays so; any other text
// of a source or a record is taken for Windows-1252. Plain functions, any thread.
#pragma once

#include <string>
#include <string_view>

namespace kesto::cli {

bool isAscii(std::string_view text);
// Whether all of it is UTF-8.
bool isUtf8(std::string_view text);
std::string utf8Of(std::string_view text);
// The text in Windows-1252: UTF-8 becomes it, "?" for what that does not have, and any other
// text stays.
std::string ansiOf(std::string_view text);
// A JSON string of UTF-8, with its quotes; a byte that is none becomes U+FFFD.
std::string jsonOf(std::string_view utf8);

}  // namespace kesto::cli
