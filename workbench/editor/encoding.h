// The characters of a document's lines. A document keeps the bytes of its file; in a
// UTF-8 text several of them may make a character, and a byte that makes none counts
// as one by itself. Add-ons and scripts see Windows-1252, a byte a character. Plain
// functions; columns are 0-based and count bytes of the document.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace workbench {

enum class Encoding : std::uint8_t { kAnsi, kUtf8 };

// The three bytes that mark a file as UTF-8.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// UTF-8 for what bears the mark, and for what is UTF-8 and not ASCII alone.
Encoding encodingOf(std::string_view bytes);
bool isAscii(std::string_view bytes);

// Which character begins at the column, its length in *length, 1 at the least.
unsigned characterAt(std::string_view line, int column, Encoding encoding, int* length);
// Where the next character begins and the one before; a column past the end goes by one.
int nextColumn(std::string_view line, int column, Encoding encoding);
int previousColumn(std::string_view line, int column, Encoding encoding);
// The start of the character that the column lies in.
int startOfCharacter(std::string_view line, int column, Encoding encoding);

// From the column to the number of characters before it, and back.
int charactersBefore(std::string_view line, int column, Encoding encoding);
int columnOfCharacter(std::string_view line, int character, Encoding encoding);

// Between the bytes of a document and Windows-1252.
std::string toAnsi(std::string_view text, Encoding encoding);
std::string fromAnsi(std::string_view ansi, Encoding encoding);

// Between the bytes of a document and UTF-16.
std::wstring toWide(std::string_view text, Encoding encoding);
// False when the encoding has no place for a character.
bool fromWide(std::wstring_view wide, Encoding encoding, std::string* text);

}  // namespace workbench
