// How numbers stand in the settings store: as decimal text.
#pragma once

#include <cstddef>

namespace kesto {

// Size of a buffer for any number's text, its terminator included.
inline constexpr std::size_t kIntegerTextSize = 40;

void formatInteger(int value, char (&text)[kIntegerTextSize]);

// The number that the text begins with (blanks may precede it), drawn to the
// nearest int when it is out of range; default_value when it begins with none.
int parseInteger(const char* text, int default_value);

}  // namespace kesto
