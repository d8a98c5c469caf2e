// The real bar window and the settings objects, on a registry root of their own.
#include "addon/topbar/top_bar.h"

#include <string>

#include "addon/completion/completion_engine.h"
#include "addon/foundation/settings_store.h"
#include "addon/navigation/editor_navigation.h"
#include "addon/navigation/quick_find.h"
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

TEST_CASE("settings go back under their names, with the values that were read") {
  OwnSettings root;
  const struct {
    const char* section;
    const char* name;
    const char* text;
  } values[] = {
      {"TopBar", "Enabled", "0"},
      {"TopBar", "HideWithBCW", "0"},
      {"TopBar", "HideWithView", "1"},
      {"TopBar", "AlwaysOnTop", "1"},
      {"TopBar", "EditOtherView", "1"},
      {"TopBar", "LeftMargin", "-2049"},
      {"TopBar", "RightMargin", "4711"},
      {"TopBar", "MenuSize", "7"},
      {"TopBar", "Hierarchical", "2"},
      {"Menus", "Enabled", "0"},
      {"Menus", "Size", "11"},
      {"Menus", "Sorted", "0"},
      {"QuickFind", "FunctionMask", "*.c"},
      {"QuickFind", "IncludeMask", ""},
      {"QuickFind", "TxtFunction", "F1"},
      {"QuickFind", "TxtMethod", "F2"},
      {"QuickFind", "TxtClass", "F3"},
      {"QuickFind", "TxtCross", "F4"},
      {"QuickFind", "Recurse", "0"},
      {"QuickFind", "LeftSide", "0"},
      {"QuickFind", "KeyFunction", "112"},
      {"QuickFind", "KeyMethod", "7113"},
      {"QuickFind", "KeyClass", "114"},
      {"QuickFind", "KeyCross", "115"},
      {"Completion", "Enabled", "0"},
      {"Completion", "KeyCode", "4032"},
      {"Completion", "TextCode", "Ctrl+Space"},
      {"Completion", "NbFiles", "2"},
      {"Completion\\Files", "Entry0", "C:\\two.kwd"},
      {"Completion\\Files", "Entry1", "one.kwd"},
  };
  kesto::SettingsStore& store = kesto::settings();
  for (const auto& value : values) {
    store.writeString(value.section, value.name, value.text);
  }
  {
    const kesto::TopBar bar(true, nullptr);
    const kesto::EditorNavigation navigation(nullptr, true);
    const kesto::QuickFind quick_find(nullptr);
    const kesto::CompletionEngine completion;
    CHECK(!bar.enabled());
    CHECK(bar.construction() == kesto::BarConstruction::kNoMenu);
    CHECK(!navigation.enabled());
    CHECK(quick_find.key(kesto::Search::kMethod) == 7113);
    CHECK(completion.keyCode() == 4032);
    root.clear();
  }
  for (const auto& value : values) {
    CAPTURE(value.section);
    CAPTURE(value.name);
    char text[80] = "missing";
    CHECK(store.readString(value.section, value.name, text, sizeof text, nullptr));
    CHECK(std::string(text) == value.text);
  }
  // The margins' defaults are those of the look.
  for (const bool new_shell : {true, false}) {
    root.clear();
    { const kesto::TopBar by_default(new_shell, nullptr); }
    CHECK(store.readInteger("TopBar", "LeftMargin", 99) == (new_shell ? -1 : 17));
    CHECK(store.readInteger("TopBar", "RightMargin", 99) == (new_shell ? 58 : 37));
    CHECK(store.readInteger("TopBar", "MenuSize", 99) == 50);
  }
}
