// The built DLL itself, loaded as an IDE loads it.
#include <windows.h>

#include "doctest.h"
#include "tests/addon/fake_ide.h"

namespace {

struct HandleCounts {
  int gdi = 0;
  int windows = 0;
  int menus = 0;
};

// Wine has no count of a process's handles, but it answers for any low word.
HandleCounts countHandles() {
  HandleCounts counts;
  for (unsigned low = 1; low < 0x10000; ++low) {
    counts.gdi += GetObjectType(reinterpret_cast<HGDIOBJ>(low)) != 0;
    // Windows of the desktop's other programs come and go.
    DWORD process = 0;
    GetWindowThreadProcessId(reinterpret_cast<HWND>(low), &process);
    counts.windows += process == GetCurrentProcessId();
    counts.menus += IsMenu(reinterpret_cast<HMENU>(low)) != FALSE;
  }
  return counts;
}

// The bar of this process, whichever others there are.
HWND ownBar() {
  HWND bar = nullptr;
  while ((bar = FindWindowExA(nullptr, bar, "KADO", nullptr)) != nullptr) {
    DWORD process = 0;
    GetWindowThreadProcessId(bar, &process);
    if (process == GetCurrentProcessId()) {
      return bar;
    }
  }
  return nullptr;
}

void drain() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    DispatchMessageA(&message);
  }
}

// One session, with messages for the hooks to see before and after it.
void runOnce(fake::Ide& ide) {
  const HMODULE module = LoadLibraryA("Kestoaob.dll");
  REQUIRE(module != nullptr);
  const auto entry = reinterpret_cast<ideapi::AddonEntry>(
      reinterpret_cast<void*>(GetProcAddress(module, ideapi::kAddonEntryName)));
  REQUIRE((entry != nullptr));
  ide.AddRef();
  entry(reinterpret_cast<int>(static_cast<IIde*>(&ide)));
  CHECK(ownBar() != nullptr);
  drain();
  entry(0);
  CHECK(ownBar() == nullptr);
  FreeLibrary(module);
  CHECK(GetModuleHandleA("Kestoaob.dll") == nullptr);
  // A hook left behind would now run in memory that is gone.
  DestroyWindow(CreateWindowExA(0, "STATIC", "after", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 90,
                                60, nullptr, nullptr, nullptr, nullptr));
  drain();
}

}  // namespace

TEST_CASE("a hundred sessions in one process leave nothing behind") {
  fake::Ide ide;
  // The first one makes the system load and keep what it needs.
  runOnce(ide);
  const int references = fake::live_references;
  const HandleCounts before = countHandles();
  for (int i = 0; i < 100; ++i) {
    runOnce(ide);
  }
  const HandleCounts after = countHandles();
  CHECK(after.gdi == before.gdi);
  CHECK(after.windows == before.windows);
  CHECK(after.menus == before.menus);
  CHECK(fake::live_references == references);
}
