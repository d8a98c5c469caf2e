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

// The name; empty when there is none or the user cancelled, or when the IDE closed
// meanwhile: nothing that was there before may be relied on afterwards. editor is the "BCW5Editor"
// window that counts and may be gone; the dialog belongs to owner, has the title and offers the
// history.
std::string promptForText(HWND owner, HWND editor, const char* title, const PromptHistory& history);

}  // namespace kesto
