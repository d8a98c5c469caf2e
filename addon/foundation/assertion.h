// Internal checks that tell the user and go on. The caller decides what to leave
// undone after a failed one. Callable from any thread that may show a box.
#pragma once

namespace kesto {

// Returns the condition; when it is false, first shows an "Erreur" box that names
// the source file (without extension), the line and the condition's text.
bool checkThat(bool condition, const char* condition_text, const char* source, int line);

}  // namespace kesto
