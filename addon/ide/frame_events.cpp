// The message hooks' part of the hook set: windows that come, go, are painted,
// sized and activated.
#include "addon/ide/find_window.h"
#include "addon/ide/hook_set.h"
#include "addon/ide/modeless_dialogs.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {

void HookSet::onWindowMessage(const CWPSTRUCT& message) {
  switch (message.message) {
    case WM_CREATE:
      if (isWindowOfClass(message.hwnd, ideapi::kEditorClass)) {
        post(kCommandEditorCreated, reinterpret_cast<LPARAM>(message.hwnd));
        break;
      }
      [[fallthrough]];
    case WM_DESTROY:
      if (host_.barWatchesProjectView() && isWindowOfClass(message.hwnd, ideapi::kProjectClass)) {
        post(kCommandRebuildMenu);
      }
      break;
    case WM_NCPAINT:
    case WM_NCACTIVATE:
      if (host_.navigationEnabled() && isWindowOfClass(message.hwnd, ideapi::kEditorClass)) {
        onEditorFrame(message.hwnd);
      }
      break;
    case WM_COMMAND:
      onCommand(message.hwnd, message.wParam);
      break;
    case WM_SIZE:
      if (message.hwnd == findFrame()) {
        onFrameSize(message.wParam == SIZE_MINIMIZED);
      }
      break;
    case WM_ACTIVATE:
      if (message.hwnd == findFrame()) {
        onFrameActivation(LOWORD(message.wParam) != WA_INACTIVE);
      }
      break;
    default:
      break;
  }
}

void HookSet::onEditorFrame(HWND editor) {
  if (IsIconic(editor)) {
    return;
  }
  RECT frame = {};
  GetWindowRect(editor, &frame);
  if (frame.right - frame.left > 2 * GetSystemMetrics(SM_CYCAPTION)) {
    posting_paint_ = true;
    post(kCommandPaintButtons, reinterpret_cast<LPARAM>(editor));
    posting_paint_ = false;
  } else {
    MessageBeep(0);
  }
}

void HookSet::onFrameSize(bool minimised) {
  if (!host_.barFollowsFrame()) {
    return;
  }
  const bool visible = IsWindowVisible(bar_) != FALSE;
  if (minimised && visible) {
    ShowWindow(bar_, SW_HIDE);
    host_.showCompanions(false);
  } else if (!minimised && !visible) {
    ShowWindow(bar_, SW_SHOWNA);
    host_.showCompanions(true);
  }
}

void HookSet::onFrameActivation(bool active) {
  if (host_.barStaysOnTop()) {
    return;
  }
  if (active) {
    SetWindowPos(bar_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
  } else {
    SetWindowPos(bar_, HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOREDRAW | SWP_NOACTIVATE);
  }
}

// A menu posts its commands; those of a shortcut are sent, and say so in the high word.
void HookSet::onCommand(HWND window, WPARAM wParam) {
  if (LOWORD(wParam) == ideapi::kCommandSaveAll && isWindowOfClass(window, ideapi::kFrameClass)) {
    host_.resetAutoSave();
  }
}

LRESULT CALLBACK HookSet::getMessageHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code >= 0 && current != nullptr) {
    MSG& message = *reinterpret_cast<MSG*>(lParam);
    if (message.message == WM_COMMAND) {
      current->onCommand(message.hwnd, message.wParam);
    } else if (wParam == PM_REMOVE) {
      takeDialogKey(message, current->bar_);
    }
  }
  return CallNextHookEx(current != nullptr ? current->get_message_ : nullptr, code, wParam, lParam);
}

}  // namespace kesto
