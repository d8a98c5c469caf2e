// The windows inside the IDE's frame: where one stands, and which of them is active, so
// that both can be put back. User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

struct DocumentPlace {
  HWND window = nullptr;       // null: none was there
  RECT frame = {};             // on the screen
  WINDOWPLACEMENT sizes = {};  // minimised, normal or maximised, and the other sizes

  bool minimised() const { return window != nullptr && sizes.showCmd == SW_SHOWMINIMIZED; }
};

// Of null, that none was there.
DocumentPlace placeOfDocument(HWND window);
// Gives the window that place, without activating it. Maximised it becomes only while it
// is the active one: the frame has no other.
void putDocument(HWND window, const DocumentPlace& place);

struct ActiveDocument {
  HWND window = nullptr;  // null: none is
  bool maximised = false;
};

ActiveDocument activeDocument();
// Makes it active and as large as it was; nothing for a window that is none of the
// frame's any more.
void activateDocument(const ActiveDocument& document);

}  // namespace kesto
