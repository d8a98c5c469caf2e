// Words around a caret in a line of text. Plain functions.
#pragma once

#include <string_view>

namespace kesto {

// The word that the 1-based column touches, at most 255 characters; empty when
// the column lies outside the line.
std::string_view wordAround(std::string_view line, int column);

// The word that ends before the 1-based column; empty in column 1. Past the end there is
// none either: a caret may stand away from its line's text.
std::string_view wordBefore(std::string_view line, int column);

}  // namespace kesto
