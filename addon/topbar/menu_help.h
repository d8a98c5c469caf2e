// Which help topic a menu of the bar, or a popup of a title bar, is about while it is open: F1
// tells only that help is wanted, and systems differ in what else they tell with it.
// User-interface thread only.
#pragma once

#include <windows.h>

#include "addon/ide/help_topics.h"

namespace kesto {

// For WM_INITMENUPOPUP: this one opens.
void noteMenuOpened(HMENU popup);
// For WM_MENUSELECT, with what comes with it.
void noteMenuSelection(WPARAM wParam, LPARAM lParam);
// The topic of what was noted last.
HelpTopic menuHelpTopic();

}  // namespace kesto
