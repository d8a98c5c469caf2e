#include "addon/ide/window_painting.h"

#include "addon/ide/access.h"
#include "addon/ide/find_window.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

// A window that does not take its painting for done must not keep the thread.
constexpr int kMostPaintings = 32;

constexpr DWORD kPeriod = 50;  // milliseconds

bool hasSession() {
  return static_cast<bool>(acquireIde());
}

BOOL CALLBACK repaintFrame(HWND window, LPARAM) {
  if (isWindowOfClass(window, ideapi::kEditorClass)) {
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
  }
  return TRUE;
}

}  // namespace

void repaintEditorFrames() {
  if (const HWND client = findMdiClient()) {
    EnumChildWindows(client, repaintFrame, 0);
  }
}

bool paintWindows() {
  MSG message;
  for (int i = 0; i < kMostPaintings && hasSession() &&
                  PeekMessageA(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE) != FALSE;
       ++i) {
    // It comes whatever is asked for, and is meant for the IDE's own loop.
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    DispatchMessageA(&message);
  }
  return hasSession();
}

bool PaintingWatch::goOn() {
  const DWORD now = GetTickCount();
  painted_ = now - looked_ >= kPeriod;
  if (!painted_) {
    return hasSession();
  }
  looked_ = now;
  return paintWindows();
}

}  // namespace kesto
