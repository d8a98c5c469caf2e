#include "addon/ide/open_file.h"

#include <string>

#include "addon/foundation/path.h"
#include "addon/ide/access.h"
#include "addon/ide/find_window.h"
#include "addon/ide/status_line.h"

namespace kesto {
namespace {

constexpr int kTitleSize = 512;

bool openInOtherView = false;

int runTool(const char* tool_name, const char* path) {
  const ComPtr<IToolService> service = getService<IToolService>(ideapi::kToolService);
  const ComPtr<IIdeString> name = makeIdeString(tool_name);
  const ComPtr<IIdeString> file = makeIdeString(path);
  if (!service || !name || !file) {
    return kToolNotHandled;
  }
  const ToolHandle tool = service->FindTool(name.get());
  return tool != 0 ? service->RunTool(tool, file.get()) : static_cast<int>(kToolNotHandled);
}

}  // namespace

const char* toolResultText(int result) {
  switch (result) {
    case kToolNotHandled:
      return "Tool non handled";
    case kToolWarnings:
      return "Tool: Warnings";
    case kToolErrors:
      return "Tool: Errors";
    case kToolFatal:
      return "Tool: Fatal error";
    default:
      return nullptr;
  }
}

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
  ShowWindow(editor, SW_SHOWNORMAL);
  SetWindowPos(editor, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

void setOpenInOtherView(bool on) {
  openInOtherView = on;
}

bool openFile(const char* path) {
  if (!openInOtherView && GetKeyState(VK_SHIFT) >= 0) {
    if (const HWND editor = findEditorTitled(path, nullptr)) {
      raiseEditor(editor);
      SetActiveWindow(editor);
      return true;
    }
  }
  const int result = runTool("EditText", path);
  if (const char* text = toolResultText(result)) {
    showStatus(text);
    return false;
  }
  return true;
}

}  // namespace kesto
