// The parts of a line of a resource script. Views point into the line. Any thread.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace kesto {

struct RcToken {
  std::string_view text;  // empty when a control character or the end comes first
  std::size_t end;        // where it ends in its line
};

// The run of characters above 32 that follows blanks and tabs, from a place on; a place
// beyond the line's end counts as the end.
RcToken rcToken(std::string_view line, std::size_t from = 0);

// The first fields of a line split at the commas outside double quotes. Blanks and
// backspaces before a field are skipped, tabs are not. A field in double quotes reaches to
// its last quote, another to its end, blanks included; one that the line has not is empty.
using RcFields = std::array<std::string_view, 4>;
RcFields rcCommaFields(std::string_view line);

// Whether the line holds the word after a blank, and followed by the ending.
bool holdsAfterBlank(std::string_view line, std::string_view word, std::string_view ending = {});

// IDC_NAME names the member NAME: a prefix of three characters and "_" goes when
// anything follows it.
std::string_view rcMemberName(std::string_view identifier);

// ABOUT_1036 is ABOUT in another language: "_" fifth from the end, and a digit before
// the last character.
bool isLanguageVariant(std::string_view dialog);

// The framework class of a window class, by its style expression where it is a button;
// empty when the framework has none.
std::string_view rcFrameworkClass(std::string_view window_class, std::string_view style);

}  // namespace kesto
