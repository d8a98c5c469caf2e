// The keyboard hook's part of the hook set: shortcuts and key capture.
#include <string>

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
// Milliseconds after which an Escape that has not come was never in the queue.
constexpr DWORD kSwallowTime = 5000;

bool hasEditorText() {
  const HWND focus = GetFocus();
  return focus != nullptr && (isWindowOfClass(focus, ideapi::kEditorTextClass) ||
                              isWindowOfClass(focus, ideapi::kEditorClass));
}

BOOL CALLBACK noticePopup(HWND window, LPARAM parameter) {
  constexpr char kPopupMenuClass[] = "#32768";
  bool& open = *reinterpret_cast<bool*>(parameter);
  open = IsWindowVisible(window) && isWindowOfClass(window, kPopupMenuClass);
  return !open;
}

// Of a title bar or a menu bar, the IDE's own among them.
bool isPopupOpen() {
  bool open = false;
  EnumThreadWindows(GetCurrentThreadId(), noticePopup, reinterpret_cast<LPARAM>(&open));
  return open;
}

// Keys belong to a popup or a modal dialog while there is one.
bool keysAreTaken() {
  return isPopupOpen() || !isIdeFree();
}

}  // namespace

unsigned pressedKeyCode(UINT virtual_key, LPARAM lParam) {
  return keyCode(virtual_key, GetKeyState(VK_CONTROL) < 0, (lParam & kAltHeld) != 0,
                 GetKeyState(VK_SHIFT) < 0);
}

void HookSet::swallowEscape() {
  swallowing_escape_ = true;
  swallowing_since_ = GetTickCount();
}

// Held down, the key repeats until it comes up.
bool HookSet::onSwallowedEscape(LPARAM lParam) {
  const bool swallowed = swallowing_escape_ && GetTickCount() - swallowing_since_ < kSwallowTime;
  swallowing_since_ = GetTickCount();
  swallowing_escape_ = swallowed && (lParam & kKeyUp) == 0;
  return swallowed;
}

bool HookSet::onKey(UINT virtual_key, LPARAM lParam) {
  if (key_capture_ != nullptr) {
    return onCapturedKey(virtual_key, lParam);
  }
  if (onHeldKey(virtual_key, lParam)) {
    return true;
  }
  if ((lParam & (kKeyUp | kKeyWasDown)) != 0) {
    return false;
  }
  const unsigned completion = host_.completionKey();
  if (completion != 0 && virtual_key == virtualKeyOf(completion) &&
      pressedKeyCode(virtual_key, lParam) == completion && hasEditorText() && !keysAreTaken()) {
    post(kCommandComplete);
    return true;
  }
  return host_.navigationEnabled() && onSearchKey(pressedKeyCode(virtual_key, lParam));
}

bool HookSet::onCapturedKey(UINT virtual_key, LPARAM lParam) {
  const bool modifier = virtual_key >= VK_SHIFT && virtual_key <= VK_MENU;
  // What it does with the key may end the capture.
  held_key_ = (lParam & kKeyUp) == 0 && !modifier ? virtual_key : 0;
  // One that was down before has opened the capture, and repeats.
  if (held_key_ != 0 && (lParam & kKeyWasDown) == 0) {
    SendMessageA(key_capture_, kCapturedKeyMessage, virtual_key, lParam);
  }
  return true;
}

bool HookSet::onHeldKey(UINT virtual_key, LPARAM lParam) {
  if (virtual_key != held_key_) {
    return false;
  }
  const bool held = (lParam & (kKeyUp | kKeyWasDown)) != 0;
  if (!held || (lParam & kKeyUp) != 0) {
    held_key_ = 0;
  }
  return held;
}

bool HookSet::onSearchKey(unsigned code) {
  for (int search = 0; search < kSearchKeyCount; ++search) {
    if (host_.searchKey(search) != code) {
      continue;
    }
    const HWND editor = findActiveEditor();
    if (editor == nullptr || suspended_ || keysAreTaken()) {
      return false;
    }
    char title[kActiveTitleSize] = "";
    const int length = GetWindowTextA(editor, title, sizeof title);
    target_.window = editor;
    lstrcpynA(target_.title, title, sizeof target_.title);
    lstrcpynA(target_.file, std::string(fileOfTitle(title, sizeof title)).c_str(),
              sizeof target_.file);
    if (length == 0) {
      return false;
    }
    post(kCommandFirstSearchKey + search);
    return true;
  }
  return false;
}

}  // namespace kesto
