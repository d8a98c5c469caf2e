#include "addon/ide/open_file.h"

#include <string>
#include <string_view>

#include "addon/foundation/full_path.h"
#include "addon/foundation/path.h"
#include "addon/ide/find_window.h"
#include "addon/ide/tool_runs.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

constexpr int kTitleSize = 512;

bool openInOtherView = false;

// The first editor window, from the top one down, that the test takes by its title.
template <class Test>
HWND findEditor(HWND other_than, const Test& takes) {
  const HWND client = findMdiClient();
  HWND window = client != nullptr ? GetWindow(client, GW_CHILD) : nullptr;
  for (; window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
    if (window == other_than || !isWindowOfClass(window, ideapi::kEditorClass)) {
      continue;
    }
    char title[kTitleSize] = "";
    GetWindowTextA(window, title, sizeof title);
    if (takes(std::string_view(title))) {
      return window;
    }
  }
  return nullptr;
}

}  // namespace

HWND findEditorTitled(const std::string& path, HWND other_than) {
  return findEditor(other_than,
                    [&](std::string_view title) { return equalIgnoringCase(title, path); });
}

HWND findEditorOf(const std::string& path) {
  return findEditor(nullptr, [&](std::string_view title) {
    return equalIgnoringCase(fileOfTitle(title, title.size()), path);
  });
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
  const std::string file = fullPath(path);
  if (!wantsOtherView()) {
    if (const HWND editor = findEditorOf(file)) {
      raiseEditor(editor);
      SetActiveWindow(editor);
      return true;
    }
  }
  return runTool("EditText", file.c_str());
}

}  // namespace kesto
