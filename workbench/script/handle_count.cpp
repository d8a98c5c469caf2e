#include "workbench/script/handle_count.h"

#include <windows.h>

namespace workbench {
namespace {

// Not in the headers of the oldest systems, but in those that matter here.
using GuiResources = DWORD(WINAPI*)(HANDLE, DWORD);

DWORD systemCount(DWORD kind) {
  HMODULE user = GetModuleHandleA("USER32.DLL");
  auto count = reinterpret_cast<GuiResources>(
      reinterpret_cast<void*>(GetProcAddress(user, "GetGuiResources")));
  return count != nullptr ? count(GetCurrentProcess(), kind) : 0;
}

// A handle's low word is its place in the process's table; the system accepts
// the word alone as a handle.
HANDLE fromWord(ULONG_PTR word) {
  return reinterpret_cast<HANDLE>(word);
}

BOOL CALLBACK addOne(HWND, LPARAM data) {
  ++*reinterpret_cast<long*>(data);
  return TRUE;
}

BOOL CALLBACK addOwn(HWND window, LPARAM data) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == GetCurrentProcessId()) {
    addOne(window, data);
    EnumChildWindows(window, addOne, data);
  }
  return TRUE;
}

long countGdi() {
  long count = 0;
  for (ULONG_PTR word = 1; word < 0x10000; ++word) {
    if (GetObjectType(fromWord(word)) != 0) {
      ++count;
    }
  }
  return count;
}

long menuWords() {
  long count = 0;
  for (ULONG_PTR word = 1; word < 0x10000; ++word) {
    if (IsMenu(static_cast<HMENU>(fromWord(word)))) {
      ++count;
    }
  }
  return count;
}

// Where handles are spaced two apart, both words are taken for the one menu.
long countMenus() {
  long before = menuWords();
  HMENU one = CreatePopupMenu();
  long words = menuWords() - before;
  DestroyMenu(one);
  return words > 0 ? before / words : before;
}

}  // namespace

HandleCount countHandles() {
  HandleCount count;
  EnumWindows(addOwn, reinterpret_cast<LPARAM>(&count.windows));
  count.menus = countMenus();
  count.gdi = static_cast<long>(systemCount(GR_GDIOBJECTS));
  if (count.gdi == 0) {
    count.gdi = countGdi();
  }
  count.user = static_cast<long>(systemCount(GR_USEROBJECTS));
  if (count.user == 0) {
    count.user = count.windows + count.menus;
  }
  return count;
}

}  // namespace workbench
