#include "addon/behaviours/document_place.h"

#include "addon/ide/find_window.h"

namespace kesto {

DocumentPlace placeOfDocument(HWND window) {
  DocumentPlace place;
  place.window = window;
  place.sizes.length = sizeof place.sizes;
  if (window != nullptr) {
    GetWindowRect(window, &place.frame);
    GetWindowPlacement(window, &place.sizes);
  }
  return place;
}

void putDocument(HWND window, const DocumentPlace& place) {
  WINDOWPLACEMENT sizes = place.sizes;
  if (place.minimised()) {
    sizes.flags |= WPF_SETMINPOSITION;
    sizes.showCmd = SW_SHOWMINNOACTIVE;
    SetWindowPlacement(window, &sizes);
  } else if (sizes.showCmd == SW_SHOWMAXIMIZED || IsZoomed(window)) {
    const bool stays = IsZoomed(window) || activeDocument().window == window;
    sizes.showCmd = static_cast<UINT>(stays ? SW_SHOWMAXIMIZED : SW_SHOWNOACTIVATE);
    SetWindowPlacement(window, &sizes);
    return;
  }
  POINT corner = {place.frame.left, place.frame.top};
  ScreenToClient(GetParent(window), &corner);
  SetWindowPos(window, nullptr, corner.x, corner.y, place.frame.right - place.frame.left,
               place.frame.bottom - place.frame.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

ActiveDocument activeDocument() {
  const HWND client = findMdiClient();
  if (client == nullptr) {
    return {};
  }
  const auto window = reinterpret_cast<HWND>(SendMessageA(client, WM_MDIGETACTIVE, 0, 0));
  return {window, window != nullptr && IsZoomed(window)};
}

void activateDocument(const ActiveDocument& document) {
  const HWND client = findMdiClient();
  const auto window = reinterpret_cast<WPARAM>(document.window);
  if (client == nullptr || window == 0 || GetParent(document.window) != client) {
    return;
  }
  if (activeDocument().window != document.window) {
    SendMessageA(client, WM_MDIACTIVATE, window, 0);
  }
  if (document.maximised && !IsZoomed(document.window)) {
    SendMessageA(client, WM_MDIMAXIMIZE, window, 0);
  }
}

}  // namespace kesto
