#include "addon/ide/modeless_dialogs.h"

#include "addon/ide/bar_messages.h"
#include "addon/ide/environment.h"
#include "addon/ide/find_window.h"

namespace kesto {

ModelessDialog* ModelessDialog::first = nullptr;

namespace {

MSG pendingKey = {};

// A character beyond ASCII is no key of a dialog, and its code depends on whether the IDE's
// loop is a wide one: it goes its own way.
bool isDialogKey(const MSG& message) {
  const bool character = message.message == WM_CHAR || message.message == WM_SYSCHAR;
  return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST &&
         !(character && message.wParam >= 0x80);
}

// A menu, or a window that is being moved, has the keys to itself, wherever they point; a
// control that holds the mouse has not.
bool areKeysHeld(HWND dialog) {
  const HWND capture = GetCapture();
  return capture != nullptr && !IsChild(dialog, capture) && !isWindowOfClass(capture, "ComboLBox");
}

}  // namespace

bool ModelessDialog::create(const char* template_name, HWND owner) {
  if (!isOpen() && addonEnvironment != nullptr) {
    CreateDialogParamA(addonEnvironment->instance, template_name, owner, procedure,
                       reinterpret_cast<LPARAM>(this));
  }
  return isOpen();
}

void ModelessDialog::close() {
  if (isOpen()) {
    DestroyWindow(window_);
  }
}

INT_PTR CALLBACK ModelessDialog::procedure(HWND dialog, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    auto* const created = reinterpret_cast<ModelessDialog*>(lParam);
    created->window_ = dialog;
    created->next_ = first;
    first = created;
  }
  auto* const self = reinterpret_cast<ModelessDialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
  if (self == nullptr) {
    return FALSE;
  }
  if (message == WM_NCDESTROY) {
    self->forget();
    return FALSE;
  }
  const INT_PTR answer = self->handle(dialog, message, wParam, lParam);
  if (message == WM_CLOSE && answer == FALSE) {
    DestroyWindow(dialog);
    return TRUE;
  }
  return answer;
}

void ModelessDialog::forget() {
  for (ModelessDialog** at = &first; *at != nullptr; at = &(*at)->next_) {
    if (*at == this) {
      *at = next_;
      break;
    }
  }
  window_ = nullptr;
}

HWND ModelessDialog::dialogOf(HWND window) {
  for (const ModelessDialog* dialog = first; dialog != nullptr; dialog = dialog->next_) {
    if (window == dialog->window_ || IsChild(dialog->window_, window)) {
      return dialog->window_;
    }
  }
  return nullptr;
}

bool takeDialogKey(MSG& message, HWND bar) {
  const HWND dialog = isDialogKey(message) ? ModelessDialog::dialogOf(message.hwnd) : nullptr;
  if (dialog == nullptr || areKeysHeld(dialog)) {
    return false;
  }
  pendingKey = message;
  message.hwnd = bar;
  message.message = kDialogKeyMessage;
  message.wParam = 0;
  message.lParam = 0;
  return true;
}

void passDialogKey() {
  MSG key = pendingKey;
  const HWND dialog = ModelessDialog::dialogOf(key.hwnd);
  if (dialog != nullptr && IsDialogMessageA(dialog, &key) == FALSE) {
    TranslateMessage(&key);
    DispatchMessageA(&key);
  }
}

}  // namespace kesto
