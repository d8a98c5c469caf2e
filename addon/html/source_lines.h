// What a single line of a source may be, and the names it holds. The views point into
// the line. Pure.
#pragma once

#include <cstddef>
#include <string_view>

namespace kesto {

// The texts that open documentation comments; each but the last is followed by a name.
inline constexpr std::string_view kClassComment = "/** ::";
inline constexpr std::string_view kMacroComment = "/** #";
inline constexpr std::string_view kEntryComment = "/** ";
inline constexpr std::string_view kFileComment = "/**";

inline constexpr std::string_view kScope = "::";
inline constexpr std::string_view kDefine = "#define";

// The line without all the control characters at its end.
std::string_view withoutControls(std::string_view line);

// The identifier that the text starts with; empty when it starts with none.
std::string_view leadingIdentifier(std::string_view text);
// The identifier that the text ends with.
std::string_view trailingIdentifier(std::string_view text);
// The text from its first identifier on.
std::string_view fromIdentifier(std::string_view text);

bool isClassComment(std::string_view line);
bool isMethodComment(std::string_view line);
bool isMacroComment(std::string_view line);
bool isFunctionComment(std::string_view line);

// Those that follow are asked for lines outside comments.
bool isClassDeclaration(std::string_view line);
bool isFunctionDefinition(std::string_view line);
bool isMethodDefinition(std::string_view line);
bool isMacroDefinition(std::string_view line);

// Where the keyword of a class declaration ends; npos when the line has none.
std::size_t classKeywordEnd(std::string_view line);

}  // namespace kesto
