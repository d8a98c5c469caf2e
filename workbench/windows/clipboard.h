// Plain text on the clipboard. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

// Line ends go out as CR LF. Returns false when the clipboard cannot be had. The wide
// text goes along where there is one.
bool putOnClipboard(HWND owner, const std::string& text, const std::wstring& wide = {});
// False when there is no text.
bool takeFromClipboard(HWND owner, std::string* text);
bool takeWideFromClipboard(HWND owner, std::wstring* text);

}  // namespace workbench
