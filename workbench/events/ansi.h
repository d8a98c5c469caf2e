// Windows-1252 text as UTF-8, and back. Plain functions, any thread.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace workbench {

// Returns false, with ansi empty, when the text is not UTF-8. A character that
// Windows-1252 does not have becomes "?".
bool ansiFromUtf8(std::string_view utf8, std::string* ansi);
// The five bytes that Windows-1252 leaves free become the control characters of the same
// number, as Windows itself converts them.
std::string utf8FromAnsi(std::string_view ansi);
// The length in bytes of the character that the text begins with, and which it is; 0
// when what is there is no UTF-8.
std::size_t decodeUtf8(std::string_view text, unsigned* code);
void appendUtf8(std::string& out, unsigned code);
// The byte of a character, "?" for one that Windows-1252 does not have; and back.
char ansiFromCode(unsigned code);
unsigned codeFromAnsi(char ansi);
// A JSON string literal in UTF-8, quotes included.
std::string jsonString(std::string_view ansi);

}  // namespace workbench
