// The keyboard hook's part of the hook set: shortcuts and key capture.
#include "addon/foundation/key_code.h"
#include "addon/foundation/path.h"
#include "addon/ide/find_window.h"
#include "addon/ide/hook_set.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

constexpr LPARAM kKeyUp = static_cast<LPARAM>(1UL << 31);
constexpr LPARAM kKeyWasDown = 1L << 30;
constexpr LPARAM kAltHeld = 1L << 29;
constexpr int kActiveTitleSize = 300;

unsigned pressedKeyCode(UINT virtualKey, LPARAM lParam) {
  return keyCode(virtualKey, GetKeyState(VK_CONTROL) < 0, (lParam & kAltHeld) != 0,
                 GetKeyState(VK_SHIFT) < 0);
}

}  // namespace

bool HookSet::onKey(UINT virtualKey, LPARAM lParam) {
  if (keyCapture_ != nullptr) {
    return onCapturedKey(virtualKey, lParam);
  }
  if ((lParam & (kKeyUp | kKeyWasDown)) != 0) {
    return false;
  }
  const unsigned completion = host_.completionKey();
  if (completion != 0 && virtualKey == completion % kKeyCodeModifiers &&
      pressedKeyCode(virtualKey, lParam) == completion) {
    post(kCommandComplete);
    return true;
  }
  return host_.navigationEnabled() && onSearchKey(pressedKeyCode(virtualKey, lParam));
}

bool HookSet::onCapturedKey(UINT virtualKey, LPARAM lParam) {
  const bool modifier = virtualKey >= VK_SHIFT && virtualKey <= VK_MENU;
  if ((lParam & kKeyUp) == 0 && !modifier) {
    SendMessageA(keyCapture_, kCapturedKeyMessage, virtualKey, lParam);
  }
  return true;
}

bool HookSet::onSearchKey(unsigned code) {
  for (int search = 0; search < kSearchKeyCount; ++search) {
    if (host_.searchKey(search) != code) {
      continue;
    }
    const HWND editor = findActiveEditor();
    if (editor == nullptr) {
      return false;
    }
    char title[kActiveTitleSize] = "";
    const int length = GetWindowTextA(editor, title, sizeof title);
    target_.window = editor;
    lstrcpynA(target_.title, title, sizeof target_.title);
    if (length == 0) {
      return false;
    }
    post(kCommandFirstSearchKey + search);
    return true;
  }
  return false;
}

}  // namespace kesto
