#include "addon/pages/key_capture.h"

#include "addon/foundation/key_code.h"
#include "addon/ide/dialog_place.h"
#include "addon/ide/environment.h"
#include "addon/ide/help_file.h"
#include "addon/ide/hook_set.h"
#include "addon/pages/page_ids.h"

namespace kesto {

namespace {

constexpr std::size_t kMostText = 80;  // characters
constexpr int kNameSize = 64;

struct Capture {
  NamedKey key;
  bool striking;   // waits for a key while the dialog is in front
  bool took_help;  // the key taken last is that of the help
};

Capture* captureOf(HWND dialog) {
  return reinterpret_cast<Capture*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

// The system's name of the key, or the character that it writes, or its number.
std::string nameOfKey(unsigned virtual_key, LPARAM lParam) {
  char name[kNameSize] = "";
  if (GetKeyNameTextA(static_cast<LONG>(lParam), name, sizeof name) > 0) {
    return name;
  }
  constexpr UINT kToCharacter = 2;
  const UINT character = MapVirtualKeyA(virtual_key, kToCharacter) & 0xFFU;
  return character > ' ' ? std::string(1, static_cast<char>(character))
                         : "Key " + std::to_string(virtual_key);
}

void listen(bool on, HWND dialog) {
  // Below the dialog the session may have ended.
  if (hookSet == nullptr) {
    return;
  }
  if (on) {
    hookSet->startKeyCapture(dialog);
  } else {
    hookSet->stopKeyCapture();
  }
}

void showKey(HWND dialog) {
  SetDlgItemTextA(dialog, CAPTURE_KEY, captureOf(dialog)->key.text.c_str());
}

void strike(HWND dialog) {
  captureOf(dialog)->striking = true;
  SetFocus(GetDlgItem(dialog, IDOK));
  listen(true, dialog);
}

void endStriking(HWND dialog, const NamedKey& key) {
  captureOf(dialog)->striking = false;
  listen(false, dialog);
  captureOf(dialog)->key = key;
  showKey(dialog);
  SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, IDOK)), TRUE);
}

void onKey(HWND dialog, UINT virtual_key, LPARAM lParam) {
  const unsigned code = pressedKeyCode(virtual_key, lParam);
  captureOf(dialog)->took_help = virtual_key == VK_F1;
  if (code == VK_ESCAPE) {
    EndDialog(dialog, IDCANCEL);
  } else {
    endStriking(dialog, {code, keyText(code, nameOfKey(virtual_key, lParam))});
  }
}

// The system may ask for help at a key that nobody else got.
void onHelp(HWND dialog) {
  Capture& capture = *captureOf(dialog);
  if (!capture.striking && !capture.took_help) {
    showHelpOn(WM_HELP, kHelpKeyCapture);
  }
  capture.took_help = false;
}

bool onCommand(HWND dialog, int control) {
  switch (control) {
    case IDOK:
    case IDCANCEL:
      EndDialog(dialog, control);
      return true;
    case CAPTURE_AGAIN:
      strike(dialog);
      return true;
    case CAPTURE_CLEAR:
      endStriking(dialog, {0, kNoKeyText});
      return true;
    default:
      return false;
  }
}

INT_PTR CALLBACK captureProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      SetWindowLongPtrA(dialog, DWLP_USER, lParam);
      showKey(dialog);
      centreOnOwner(dialog);
      strike(dialog);
      return FALSE;  // the focus is set
    case WM_ACTIVATE:
      // Keys for another window, such as a menu of the bar, are that window's.
      if (captureOf(dialog) != nullptr) {
        listen(LOWORD(wParam) != WA_INACTIVE && captureOf(dialog)->striking, dialog);
      }
      return FALSE;
    case kCapturedKeyMessage:
      // The system has a message of that number for dialogs, without a second parameter.
      if (lParam == 0) {
        return FALSE;
      }
      onKey(dialog, static_cast<UINT>(wParam), lParam);
      return TRUE;
    case WM_HELP:
      onHelp(dialog);
      return TRUE;
    case WM_COMMAND:
      return onCommand(dialog, LOWORD(wParam)) ? TRUE : FALSE;
    case WM_DESTROY:
      listen(false, dialog);
      return FALSE;
    default:
      return FALSE;
  }
}

}  // namespace

bool captureKey(HWND owner, NamedKey& key) {
  Capture capture = {key, true, false};
  if (addonEnvironment == nullptr ||
      DialogBoxParamA(addonEnvironment->instance, "KeyCapture", owner, captureProcedure,
                      reinterpret_cast<LPARAM>(&capture)) != IDOK) {
    return false;
  }
  key = capture.key;
  return true;
}

std::string keyText(unsigned code, const std::string& key_name) {
  const struct {
    unsigned held;
    const char* name;
  } parts[] = {{kKeyCodeCtrl, "Ctrl"}, {kKeyCodeAlt, "Alt"}, {kKeyCodeShift, "Shift"}};
  std::string text;
  for (const auto& part : parts) {
    if (code >= part.held) {
      code -= part.held;
      text += part.name;
      text += '+';
    }
  }
  return (text + key_name).substr(0, kMostText);
}

}  // namespace kesto
