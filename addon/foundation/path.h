// Pure helpers for paths, window titles that name files, and ";" lists. Views
// point into their argument and live as long as it does.
#pragma once

#include <cstddef>
#include <string_view>

#include "addon/foundation/string.h"

namespace kesto {

// Characters of a path, and of a name in it, as the system bounds them.
#ifdef _WIN32
inline constexpr std::size_t kPathLimit = 259;
#else
inline constexpr std::size_t kPathLimit = 4095;
#endif
inline constexpr std::size_t kNameLimit = 255;
// Directories that all walks of one search together look into.
inline constexpr int kDirectoryLimit = 20000;

// Characters of a clicked editor's title that are looked at.
inline constexpr std::size_t kTitleLimit = 178;

// What follows the last "\" or "/"; the whole path when it has none.
std::string_view fileNamePart(std::string_view path);
// The name of a project by its file: without directory and the ".ide" at its end.
std::string_view projectNamePart(std::string_view file);
// What precedes the last "\" or "/"; empty when the path has none.
std::string_view directoryPart(std::string_view path);

// The path of a name in a directory, which may end in a separator.
String joinPath(std::string_view directory, std::string_view name);

// The file that an editor's title names: the IDE's ":n" view number, its "*" and a
// blank before them are cut, from the end down to the third character, so that a
// drive's colon survives. A title beyond the limit is cut there first.
std::string_view fileOfTitle(std::string_view title, std::size_t limit = kTitleLimit);
// The title without the blanks and "*" at its end.
std::string_view documentationTitle(std::string_view title);
// The file without ":" suffixes, down to the third character.
std::string_view fileWithoutLine(std::string_view file);

// a to z only; other bytes stay.
constexpr char upperAscii(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
void upperAscii(char* text);
void lowerAscii(char* text);  // A to Z only
// Whether the texts are the same but for the case of a to z.
bool equalIgnoringCase(std::string_view left, std::string_view right);

// Whether the title, in upper case, holds wanted_upper at its start or after a "\"
// or "/", and followed by the title's end or by ":".
bool titleMatches(std::string_view title, std::string_view wanted_upper);

// Takes the first entry off a ";" list, without the blanks around it; false at the
// list's end, which an empty entry is as well.
bool nextListEntry(std::string_view& rest, std::string_view& entry);

}  // namespace kesto
