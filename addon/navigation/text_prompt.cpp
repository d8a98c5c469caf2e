#include "addon/navigation/text_prompt.h"

#include "addon/ide/clipboard.h"
#include "addon/ide/dialog_place.h"
#include "addon/ide/environment.h"
#include "addon/ide/find_window.h"
#include "addon/ide/help_file.h"
#include "addon/navigation/prompt_ids.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

struct Prompt {
  const char* title;
  const PromptHistory& history;  // until the dialog is filled
  std::string text;
};

void fill(HWND dialog, const Prompt& prompt) {
  SetWindowTextA(dialog, prompt.title);
  const HWND list = GetDlgItem(dialog, PROMPT_TEXT);
  SendMessageA(list, CB_LIMITTEXT, kPromptLimit, 0);
  for (const std::string& text : prompt.history.texts()) {
    SendMessageA(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  }
  if (!prompt.history.texts().empty()) {
    SetWindowTextA(list, prompt.history.texts().front().c_str());
  }
  centreOnOwner(dialog);
  SetFocus(list);
  SendMessageA(list, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

INT_PTR CALLBACK promptProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    fill(dialog, *reinterpret_cast<const Prompt*>(lParam));
    return FALSE;  // the focus is set
  }
  if (showHelpOn(message, kHelpSearchPrompt)) {
    return TRUE;
  }
  if (message != WM_COMMAND || (LOWORD(wParam) != IDOK && LOWORD(wParam) != IDCANCEL)) {
    return FALSE;
  }
  if (LOWORD(wParam) == IDOK) {
    char text[kPromptLimit + 1] = "";
    GetDlgItemTextA(dialog, PROMPT_TEXT, text, sizeof text);
    reinterpret_cast<Prompt*>(GetWindowLongPtrA(dialog, DWLP_USER))->text = text;
  }
  EndDialog(dialog, LOWORD(wParam));
  return TRUE;
}

std::string askForText(HWND owner, const char* title, const PromptHistory& history) {
  Prompt prompt = {title, history, {}};
  if (addonEnvironment != nullptr) {
    DialogBoxParamA(addonEnvironment->instance, "dlgGETDATA", owner, promptProcedure,
                    reinterpret_cast<LPARAM>(&prompt));
  }
  return prompt.text;
}

// A selection may be any length; a name is cut to what the prompt takes.
std::string selectedText(HWND owner, HWND editor) {
  const HWND text_window =
      IsWindow(editor) ? findChildWindow(editor, ideapi::kEditorTextClass, nullptr) : nullptr;
  return text_window != nullptr ? copySelection(owner, text_window).substr(0, kPromptLimit)
                                : std::string();
}

}  // namespace

std::string promptForText(HWND owner, HWND editor, const char* title,
                          const PromptHistory& history) {
  const std::string text = selectedText(owner, editor);
  return text.empty() ? askForText(owner, title, history) : text;
}

}  // namespace kesto
