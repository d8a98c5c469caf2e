// The mouse hook's part of the hook set: clicks on editor title bars.
#include <cstring>
#include <string_view>

#include "addon/foundation/path.h"
#include "addon/ide/find_window.h"
#include "addon/ide/hook_set.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

// With its terminator.
constexpr int kTitleSize = 511;

constexpr int kButtonCommands[] = {kCommandFunctions, kCommandIncludes, kCommandQuickFind};

bool isEnabledEditor(HWND window) {
  return isWindowOfClass(window, ideapi::kEditorClass) && IsWindowEnabled(window);
}

template <size_t size>
void copyText(char (&output)[size], std::string_view text) {
  const size_t length = text.size() < size ? text.size() : size - 1;
  memcpy(output, text.data(), length);
  output[length] = '\0';
}

}  // namespace

bool HookSet::onTitleClick(UINT message, const MOUSEHOOKSTRUCT& mouse) {
  if (suspended_ || !host_.navigationEnabled()) {
    return false;
  }
  POINT point = mouse.pt;
  // The second press of a double click is one more press; the IDE would take it for
  // a wish to maximise the editor.
  if (message == WM_NCLBUTTONDOWN || message == WM_NCLBUTTONDBLCLK) {
    const int button = host_.titleButtonAt(mouse.hwnd, point);
    if (button < 0 || !isEnabledEditor(mouse.hwnd)) {
      return false;
    }
    takeClick(mouse.hwnd, point, kButtonCommands[button]);
    return true;
  }
  if ((message == WM_NCRBUTTONDOWN || message == WM_NCRBUTTONDBLCLK) &&
      isEnabledEditor(mouse.hwnd)) {
    char title[kTitleSize] = "";
    GetWindowTextA(mouse.hwnd, title, sizeof title);
    copyText(target_.documented, documentationTitle(title));
    takeClick(mouse.hwnd, point, kCommandTitleMenu);
    return true;
  }
  return false;
}

void HookSet::takeClick(HWND editor, POINT point, int command) {
  char title[kTitleSize] = "";
  GetWindowTextA(editor, title, sizeof title);
  target_.window = editor;
  copyText(target_.title, fileOfTitle(title));
  // A path may be longer than what is looked at of a clicked title.
  copyText(target_.file, fileOfTitle(title, sizeof title));
  SetWindowPos(editor, HWND_TOP, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
  target_.click.x = static_cast<SHORT>(point.x);
  target_.click.y = static_cast<SHORT>(point.y);
  post(command);
}

}  // namespace kesto
