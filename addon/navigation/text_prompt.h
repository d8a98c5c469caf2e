// Asks for the name that a search is for: the selection of the editor, or the dialog
// when nothing is selected.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "addon/navigation/prompt_history.h"

namespace kesto {

// Characters of a name.
inline constexpr std::size_t kPromptLimit = 255;

// The name, entered into the history; empty when there is none or the user cancelled.
// editor is the "BCW5Editor" window that counts and may be gone; the dialog belongs to
// owner and has the title.
std::string promptForText(HWND owner, HWND editor, const char* title, PromptHistory& history);

}  // namespace kesto
