// What the add-on does to the IDE's editors. Each takes the full name of a
// file and does nothing when the editor service is missing or no editor shows
// the file. Lines and columns are 1-based. Nothing of the IDE is held after
// the call. User-interface thread only.
#pragma once

#include <cstddef>

namespace kesto {

// Room for the longest word with its terminator.
inline constexpr size_t kWordBufferSize = 256;

// Puts the caret at the start of the line and the line into sight.
void goToLine(const char* file, int line);

// The word under the caret, terminated, at most 255 characters; empty when the
// caret is past the end of its line. The output is empty too when nothing was done.
void wordAtCursor(const char* file, char (&output)[kWordBufferSize]);

// Completes the word before the caret; the outcome is on the status line. A
// trailing ":n" of the file name is ignored.
void completeAtCursor(const char* file);

}  // namespace kesto
