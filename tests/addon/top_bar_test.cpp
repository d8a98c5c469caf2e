// The real bar window and the settings objects, on a registry root of their own.
#include "addon/topbar/top_bar.h"

#include "addon/foundation/settings_store.h"
#include "addon/topbar/bar_window.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"

TEST_CASE("the bar hands activation on and is not closed by a person") {
  OwnSettings root;
  WindowFixture windows;
  kesto::registerBarClass(GetModuleHandleA(nullptr));
  const HWND bar = kesto::createBarWindow(GetModuleHandleA(nullptr), true);
  ShowWindow(bar, SW_SHOWNA);
  SetActiveWindow(bar);
  CHECK(GetActiveWindow() == windows.frame);
  CHECK(GetFocus() != bar);
  // A box without owner closes, and the bar is the next window in order.
  const HWND box = windows.create("#32770", "", WS_POPUP | WS_VISIBLE, nullptr);
  SetWindowPos(bar, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  SetWindowPos(bar, box, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  CHECK(GetActiveWindow() == box);
  DestroyWindow(box);
  CHECK(GetActiveWindow() == windows.frame);
  // A dialog keeps the frame from being used.
  const HWND dialog = windows.create("#32770", "", WS_POPUP | WS_VISIBLE, windows.frame);
  SetActiveWindow(dialog);
  EnableWindow(windows.frame, FALSE);
  SetActiveWindow(bar);
  CHECK(GetActiveWindow() == dialog);
  EnableWindow(windows.frame, TRUE);
  DestroyWindow(dialog);

  SendMessageA(bar, WM_SYSCOMMAND, SC_CLOSE, 0);
  CHECK(IsWindow(bar));
  DestroyWindow(bar);
  kesto::unregisterBarClass(GetModuleHandleA(nullptr));
}

TEST_CASE("the margins' defaults are those of the look") {
  OwnSettings root;
  kesto::SettingsStore& store = kesto::settings();
  for (const bool new_shell : {true, false}) {
    root.clear();
    { const kesto::TopBar by_default(new_shell, nullptr); }
    CHECK(store.readInteger("TopBar", "LeftMargin", 99) == (new_shell ? -1 : 17));
    CHECK(store.readInteger("TopBar", "RightMargin", 99) == (new_shell ? 58 : 37));
    CHECK(store.readInteger("TopBar", "MenuSize", 99) == 50);
  }
}
