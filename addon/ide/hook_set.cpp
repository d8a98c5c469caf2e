#include "addon/ide/hook_set.h"

namespace kesto {

HookSet* hookSet = nullptr;
HookSet* HookSet::current = nullptr;

HookSet::HookSet(HWND bar, HookHost& host) : bar_(bar), host_(host) {
  current = this;
  const DWORD thread = GetCurrentThreadId();
  mouse_ = SetWindowsHookExA(WH_MOUSE, mouseHook, nullptr, thread);
  call_window_ = SetWindowsHookExA(WH_CALLWNDPROC, callWindowHook, nullptr, thread);
  get_message_ = SetWindowsHookExA(WH_GETMESSAGE, getMessageHook, nullptr, thread);
  keyboard_ = SetWindowsHookExA(WH_KEYBOARD, keyboardHook, nullptr, thread);
}

HookSet::~HookSet() {
  const struct {
    HHOOK handle;
    int type;
    HOOKPROC procedure;
  } hooks[] = {{mouse_, WH_MOUSE, mouseHook},
               {call_window_, WH_CALLWNDPROC, callWindowHook},
               {get_message_, WH_GETMESSAGE, getMessageHook},
               {keyboard_, WH_KEYBOARD, keyboardHook}};
  for (const auto& hook : hooks) {
    if (hook.handle != nullptr) {
      UnhookWindowsHook(hook.type, hook.procedure);
    }
  }
  current = nullptr;
}

LRESULT CALLBACK HookSet::mouseHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code >= 0 && current != nullptr) {
    const auto& mouse = *reinterpret_cast<const MOUSEHOOKSTRUCT*>(lParam);
    if (current->onTitleClick(static_cast<UINT>(wParam), mouse)) {
      return 1;
    }
  }
  return CallNextHookEx(current != nullptr ? current->mouse_ : nullptr, code, wParam, lParam);
}

LRESULT CALLBACK HookSet::callWindowHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code >= 0 && current != nullptr) {
    current->onWindowMessage(*reinterpret_cast<const CWPSTRUCT*>(lParam));
  }
  return CallNextHookEx(current != nullptr ? current->call_window_ : nullptr, code, wParam, lParam);
}

LRESULT CALLBACK HookSet::keyboardHook(int code, WPARAM wParam, LPARAM lParam) {
  if (current != nullptr) {
    // A menu only looks at a key before it takes it, and acts on that.
    const bool looked_at = code == HC_ACTION || code == HC_NOREMOVE;
    if ((looked_at && wParam == VK_ESCAPE && current->onSwallowedEscape(lParam)) ||
        (code == HC_ACTION && current->onKey(static_cast<UINT>(wParam), lParam))) {
      return 1;
    }
  }
  return CallNextHookEx(current != nullptr ? current->keyboard_ : nullptr, code, wParam, lParam);
}

void HookSet::post(int command, LPARAM lParam) {
  PostMessageA(bar_, WM_COMMAND, static_cast<WPARAM>(command), lParam);
}

}  // namespace kesto
