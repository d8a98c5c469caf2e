// Windows-1252 text as UTF-8, and back. Plain functions, any thread.
#pragma once

#include <string>
#include <string_view>

namespace workbench {

// Returns false, with ansi empty, when the text is not UTF-8. A character that
// Windows-1252 does not have becomes "?".
bool ansiFromUtf8(std::string_view utf8, std::string* ansi);
// A JSON string literal in UTF-8, quotes included. The five bytes that Windows-1252
// leaves free become the control characters of the same number, as Windows itself
// converts them.
std::string jsonString(std::string_view ansi);

}  // namespace workbench
