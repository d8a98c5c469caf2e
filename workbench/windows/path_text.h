// Windows paths as texts: full paths with drive or share, "\" or "/" between
// their parts, compared without regard to case. Plain values.
#pragma once

#include <string>
#include <string_view>

namespace workbench {

// ASCII and Latin-1 letters in lower case.
std::string foldCase(std::string_view text);
bool samePath(std::string_view a, std::string_view b);
std::string joinPath(std::string_view folder, std::string_view name);
// The part after the last separator.
std::string_view fileName(std::string_view path);
// The part before the last separator, a root with its separator ("C:\").
std::string_view folderOf(std::string_view path);
// From the last "." of the file name on, or empty.
std::string_view extensionOf(std::string_view path);
// Without "." and ".." between its parts, where that can be done, and with "\\".
std::string normalPath(std::string_view path);
// How to get from the folder to the path, "." for the folder itself; the full path
// when they share no more than the drive. Both are full and normal.
std::string relativePath(std::string_view folder, std::string_view path);
bool isAbsolutePath(std::string_view path);
// Whether a file could have that name: no ":" after the drive's, no wildcard, quote
// or redirection.
bool mayNameFile(std::string_view path);

}  // namespace workbench
