#include "addon/ide/find_window.h"

#include <cstring>

#include "addon/foundation/path.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

constexpr int kClassNameSize = 80;
constexpr int kTitleSize = 280;

struct WindowSearch {
  const char* class_name;
  const char* title;
  HWND found;
};

BOOL CALLBACK testWindow(HWND window, LPARAM parameter) {
  WindowSearch& search = *reinterpret_cast<WindowSearch*>(parameter);
  if (search.class_name != nullptr && !isWindowOfClass(window, search.class_name)) {
    return TRUE;
  }
  if (search.title != nullptr) {
    char title[kTitleSize] = "";
    GetWindowTextA(window, title, sizeof title);
    upperAscii(title);
    if (!titleMatches(title, search.title)) {
      return TRUE;
    }
  }
  search.found = window;
  return FALSE;
}

}  // namespace

bool isWindowOfClass(HWND window, const char* class_name) {
  char name[kClassNameSize] = "";
  GetClassNameA(window, name, sizeof name);
  return strcmp(name, class_name) == 0;
}

HWND findChildWindow(HWND parent, const char* class_name, const char* title) {
  WindowSearch search = {class_name, title, nullptr};
  EnumChildWindows(parent, testWindow, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND findFrame() {
  // Other IDEs may be running: theirs are of other threads.
  WindowSearch search = {ideapi::kFrameClass, nullptr, nullptr};
  EnumThreadWindows(GetCurrentThreadId(), testWindow, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

bool isIdeFree() {
  const HWND frame = findFrame();
  return frame == nullptr || IsWindowEnabled(frame);
}

HWND findMdiClient() {
  // Without a parent the enumeration would walk the desktop.
  const HWND frame = findFrame();
  return frame != nullptr ? findChildWindow(frame, ideapi::kMdiClientClass, nullptr) : nullptr;
}

HWND findActiveEditor() {
  const HWND client = findMdiClient();
  const HWND first = client != nullptr ? GetWindow(client, GW_CHILD) : nullptr;
  return first != nullptr && isWindowOfClass(first, ideapi::kEditorClass) ? first : nullptr;
}

void activateFrame() {
  if (const HWND frame = findFrame()) {
    SetActiveWindow(frame);
  }
}

}  // namespace kesto
