#include "addon/ide/open_file.h"

#include <string>

#include "addon/foundation/path.h"
#include "addon/ide/find_window.h"
#include "addon/ide/tool_runs.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

constexpr int kTitleSize = 512;

bool openInOtherView = false;

}  // namespace

HWND findEditorTitled(const char* path, HWND other_than) {
  std::string wanted(path);
  upperAscii(wanted.data());
  const HWND client = findMdiClient();
  HWND window = client != nullptr ? GetWindow(client, GW_CHILD) : nullptr;
  for (; window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
    if (window == other_than || !isWindowOfClass(window, ideapi::kEditorClass)) {
      continue;
    }
    char title[kTitleSize] = "";
    GetWindowTextA(window, title, sizeof title);
    upperAscii(title);
    if (wanted == title) {
      return window;
    }
  }
  return nullptr;
}

void raiseEditor(HWND editor) {
  // Only an icon has to be restored: one that is maximised would lose that.
  ShowWindow(editor, IsIconic(editor) ? SW_SHOWNORMAL : SW_SHOW);
  SetWindowPos(editor, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void setOpenInOtherView(bool on) {
  openInOtherView = on;
}

bool wantsOtherView() {
  return openInOtherView || GetKeyState(VK_SHIFT) < 0;
}

bool openFile(const char* path) {
  if (!wantsOtherView()) {
    if (const HWND editor = findEditorTitled(path, nullptr)) {
      raiseEditor(editor);
      SetActiveWindow(editor);
      return true;
    }
  }
  return runTool("EditText", path);
}

}  // namespace kesto
