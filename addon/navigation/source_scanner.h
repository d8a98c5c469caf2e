// The source scanner: a line filter, not a parser. It trusts that a function
// definition starts in column one with its "(" on the same line. Text in, list
// out; a text ends at its first zero byte, and lines end at CR, LF or both.
//
// Functions: a line counts when it starts neither with a blank, a control
// character, a byte above 127, nor with "#", "/" or ":" (a leading "::" is a
// global name and counts), holds no ";" and has a "(" after its first character.
// What stands before that "(" gives the name, and the class before a "::".
//   int main(void)          main
//   void *Frame::Paint()    Frame, Paint
//
// Time and memory grow with the text alone, whatever the line lengths.
#pragma once

#include <cstddef>
#include <string_view>

#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"
#include "addon/navigation/fnc.h"

namespace kesto {

// Characters of an include name that are kept.
inline constexpr std::size_t kIncludeNameLimit = 199;

// Replaces functions by those of the text, in the text's order.
void scanFunctions(std::string_view text, Tableau<Fnc>& functions);
// By class, then by name, in byte order, then by line.
void sortFunctions(Tableau<Fnc>& functions);

// Replaces includes by the names of the text's "#include" lines.
void scanIncludes(std::string_view text, Tableau<String>& includes);

}  // namespace kesto
