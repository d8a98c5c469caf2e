#include "addon/topbar/recent_files.h"

#include "addon/foundation/settings_store.h"
#include "addon/topbar/bar_commands.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"

namespace {

std::string stored(const char* section, const char* name) {
  char text[kesto::SettingsStore::kValueSize];
  kesto::settings().readString(section, name, text, sizeof text, "(none)");
  return text;
}

}  // namespace

TEST_CASE("lists come back as they were saved; long entries are cut or end the list") {
  const OwnSettings settings;
  kesto::settings().writeInteger("TopBar", "NbIDE", 3);
  kesto::settings().writeString("TopBar\\IDE", "Entry0", std::string(1999, 'p').c_str());
  kesto::settings().writeString("TopBar\\IDE", "Entry1", "C:\\b.ide");
  kesto::settings().writeString("TopBar\\IDE", "Entry2", std::string(2000, 'q').c_str());
  {
    kesto::RecentFiles files(nullptr);
    REQUIRE(files.projects().count() == 2);
    CHECK(std::string(files.projects().at(0)) == std::string(255, 'p'));
    files.maximumOfProjects().value = 1;
    files.cutToMaxima();
    files.headers().use("C:\\a.h");
    files.save();
  }
  CHECK(stored("TopBar", "NbIDE") == "1");
  CHECK(stored("TopBar", "MaxIDE") == "1");
  CHECK(stored("TopBar\\IDE", "Entry0") == std::string(255, 'p'));
  CHECK(stored("TopBar\\IDE", "Entry1") == "C:\\b.ide");  // beyond the count: left alone
  CHECK(stored("TopBar", "NbINC") == "1");
  CHECK(stored("TopBar", "MaxINC") == "50");
  CHECK(stored("TopBar\\INC", "Entry0") == "C:\\a.h");
  kesto::RecentFiles next_run(nullptr);
  CHECK(next_run.projects().count() == 1);
  CHECK(next_run.projects().maximum() == 1);
  REQUIRE(next_run.headers().count() == 1);
  CHECK(std::string(next_run.headers().at(0)) == "C:\\a.h");
}

TEST_CASE("a header is remembered whatever the bar has become") {
  BarSession session;
  session.create();
  kesto::RecentFiles& files = *kesto::recentFiles;
  const HMENU full = GetMenu(session.windows.bar);
  const HMENU bar = CreateMenu();
  const auto said = [&](HMENU menu) {
    SetMenu(session.windows.bar, menu);
    files.headerUsed("C:\\p\\d.h", nullptr);
    return session.lastStatus();
  };
  CHECK(said(nullptr) == "Pas de bar");
  AppendMenuA(bar, MF_STRING, 99, "initializing...");
  CHECK(said(bar) == "Pas de mnu");
  const HMENU popup = CreatePopupMenu();
  InsertMenuA(bar, 0, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(popup), "Kesto");
  CHECK(said(bar) == "mnu.taille=0");
  AppendMenuA(popup, MF_STRING, 199, "Options...");
  CHECK(said(bar) == "Pas de hh");
  CHECK(files.headers().count() == 1);
  SetMenu(session.windows.bar, full);
  DestroyMenu(bar);
}

TEST_CASE("a second editor of a file makes way for the first") {
  BarSession session;
  session.create();
  const HWND first = session.windows.editor("C:\\P\\A.H");
  const HWND other = session.windows.editor("C:\\p\\b.h");
  const HWND second = session.windows.editor("c:\\p\\a.h:2");
  kesto::onEditorCreated(second);
  session.windows.drain();
  CHECK(!IsWindow(second));
  CHECK(GetWindow(session.windows.client, GW_CHILD) == first);
  CHECK(kesto::recentFiles->headers().count() == 0);
  kesto::onEditorCreated(other);
  session.windows.drain();
  CHECK(IsWindow(other));
  CHECK(kesto::recentFiles->headers().count() == 1);
  kesto::onEditorCreated(second);
}
