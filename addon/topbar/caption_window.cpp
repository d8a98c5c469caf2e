#include "addon/topbar/caption_window.h"

#include "addon/ide/find_window.h"

namespace kesto {
namespace {

constexpr char kCaptionWindowClass[] = "QUK";

HWND captionWindowOf(HWND window) {
  if (!IsWindow(window)) {
    return nullptr;
  }
  if (const HWND child = findChildWindow(window, kCaptionWindowClass, nullptr)) {
    return child;
  }
  HWND owned = FindWindowA(kCaptionWindowClass, nullptr);
  while (owned != nullptr && GetWindow(owned, GW_OWNER) != window) {
    owned = FindWindowExA(nullptr, owned, kCaptionWindowClass, nullptr);
  }
  return owned;
}

}  // namespace

void placeCaptionWindow(HWND window) {
  const HWND small = captionWindowOf(window);
  if (small == nullptr) {
    MessageBeep(0);
    return;
  }
  RECT frame = {};
  RECT size = {};
  GetWindowRect(window, &frame);
  GetWindowRect(small, &size);
  const int own_buttons = 3 * GetSystemMetrics(SM_CXSIZE) + GetSystemMetrics(SM_CXFRAME);
  POINT place = {frame.right - own_buttons - (size.right - size.left),
                 frame.top + GetSystemMetrics(SM_CYFRAME)};
  if ((GetWindowLongA(small, GWL_STYLE) & WS_CHILD) != 0) {
    ScreenToClient(GetParent(small), &place);
  }
  SetWindowPos(small, HWND_TOP, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace kesto
