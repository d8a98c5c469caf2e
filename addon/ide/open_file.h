// The add-on's one way to show a file in the IDE. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

namespace kesto {

// Brings an editor that shows the file to the front or, when there is none (or
// another view is wanted, by the setting below or by the Shift key), runs the IDE's
// tool "EditText" on the full path. Returns false when the tool fails; the status line
// then says how.
bool openFile(const char* path);
// Whether a file that is open already gets another view; off at start.
void setOpenInOtherView(bool on);

// Whether a file that is open gets another view now: by that setting, or by the
// Shift key.
bool wantsOtherView();

// The editor window whose title is the full path, regardless of case and other than
// the given one (null: any); null when there is none.
HWND findEditorTitled(const std::string& path, HWND other_than);
// The topmost editor of the file: the same, but for the view number and the modified
// mark that a title may have.
HWND findEditorOf(const std::string& path);
// Shows the editor in its normal size, in front of the others, without moving it.
void raiseEditor(HWND editor);

}  // namespace kesto
