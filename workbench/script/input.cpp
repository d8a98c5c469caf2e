#include "workbench/script/input.h"

namespace workbench {
namespace {

bool isExtended(int key) {
  return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE ||
         key == VK_APPS;
}

void sendKey(int key, bool down) {
  DWORD flags = (down ? 0 : KEYEVENTF_KEYUP) | (isExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0);
  keybd_event(static_cast<BYTE>(key), static_cast<BYTE>(MapVirtualKeyA(static_cast<UINT>(key), 0)),
              flags, 0);
}

void sendModifiers(const KeyStroke& stroke, bool down) {
  const struct {
    bool wanted;
    int key;
  } modifiers[] = {{stroke.ctrl, VK_CONTROL}, {stroke.alt, VK_MENU}, {stroke.shift, VK_SHIFT}};
  for (const auto& modifier : modifiers) {
    if (modifier.wanted) {
      sendKey(modifier.key, down);
    }
  }
}

// The screen is 65536 units wide and high; rounded up, so that the way back ends
// at the same pixel.
DWORD absolute(LONG pixel, int metric) {
  LONGLONG size = GetSystemMetrics(metric);
  return static_cast<DWORD>((pixel * 65536LL + size - 1) / size);
}

}  // namespace

void holdAlt(bool down) {
  BYTE keys[256] = {};
  GetKeyboardState(keys);
  keys[VK_MENU] = down ? 0x80 : 0;
  SetKeyboardState(keys);
}

void pressKey(const KeyStroke& stroke) {
  sendModifiers(stroke, true);
  sendKey(stroke.key, true);
  sendKey(stroke.key, false);
  sendModifiers(stroke, false);
}

bool pointerRests(POINT screen) {
  POINT now{};
  GetCursorPos(&now);
  if (now.x == screen.x && now.y == screen.y) {
    return true;
  }
  SetCursorPos(screen.x, screen.y);
  return false;
}

void clickMouse(POINT screen, MouseButton button, const KeyStroke& held) {
  sendModifiers(held, true);
  bool left = button == MouseButton::kLeft;
  DWORD x = absolute(screen.x, SM_CXSCREEN), y = absolute(screen.y, SM_CYSCREEN);
  DWORD place = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
  mouse_event(place | (left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN), x, y, 0, 0);
  mouse_event(place | (left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP), x, y, 0, 0);
  sendModifiers(held, false);
}

}  // namespace workbench
