// Private messages of the bar window, for who knows the window and not the bar.
#pragma once

#include <windows.h>

namespace kesto {

// wParam is a 1-based line, lParam a zero-terminated path that lives until the
// message was handled. The first puts the file's editor on the line; the second
// opens and records the file before that.
inline constexpr UINT kGoToLineMessage = WM_USER + 7;
inline constexpr UINT kOpenFoundFileMessage = WM_USER + 8;
// The generation of the documentation site has gone on. Its thread posts it.
inline constexpr UINT kDocumentationMessage = WM_USER + 9;
// A key for a modeless dialog waits (modeless_dialogs.h).
inline constexpr UINT kDialogKeyMessage = WM_USER + 10;

}  // namespace kesto
