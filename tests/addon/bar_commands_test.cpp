// The bar's menus and their commands, with a project in the played IDE.
#include "addon/topbar/bar_commands.h"

#include <algorithm>

#include "addon/ide/header_recorder.h"
#include "addon/topbar/command_table.h"
#include "addon/topbar/recent_files.h"
#include "addon/topbar/top_bar.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"
#include "tests/foundation/recorded_boxes.h"

namespace {

using Texts = std::vector<std::string>;

class Adding : public kesto::MenuFeatures {
 public:
  unsigned added = 0;
  void quickAdd(unsigned node) override { added = node; }
};

struct Project : BarSession {
  Project() {
    create();
    ide.project.nodes = {{0, "C:\\p\\prog.exe", ".exe", "the program"},
                         {1, "C:\\p\\a.cpp", ".cpp", ""},
                         {1, "C:\\p\\b.rc", ".rc", "dialogs"},
                         {1, "C:\\p\\c.cpp", ".cpp", ""}};
    openProject("C:\\p.ide");
  }
  std::string statusOf(int id, unsigned flags = 0) {
    kesto::showCommandStatus(id, flags);
    return lastStatus();
  }
  void command(int id) { kesto::dispatchCommand(windows.bar, id, 0); }
};

// Keys as GetKeyState sees them on this thread.
class Held {
 public:
  explicit Held(std::initializer_list<int> keys) {
    BYTE state[256] = {};
    for (const int key : keys) {
      state[key] = 0x80;
    }
    SetKeyboardState(state);
  }
  ~Held() {
    BYTE state[256] = {};
    SetKeyboardState(state);
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
};

}  // namespace

TEST_CASE("status texts name what an item would do") {
  Project session;
  kesto::recentFiles->projects().addNew("C:\\old\\q.ide");
  kesto::recentFiles->headers().use("C:\\p\\a.h");
  session.ide.project.nodes[3].removed = true;
  const struct {
    int id;
    const char* text;
  } rows[] = {{200, "Switch to project C:\\old\\q.ide"},
              {300, "Run prog.exe : the program"},
              {301, "Run nothing !"},
              {400, "Open C:\\p\\a.h"},
              {10000, "Open a.cpp"},
              {10001, "Open b.rc : dialogs"},
              {10002, "Open a bad file in the project ..."},
              {10003, "Open a file in the project ..."},
              {19999, "Open a file in the project ..."},
              {171, " "},
              {20000, " "}};
  for (const auto& row : rows) {
    CAPTURE(row.id);
    CHECK(session.statusOf(row.id) == row.text);
  }
  const size_t texts = session.ide.status_line.texts.size();
  kesto::showCommandStatus(300, MF_POPUP);
  kesto::showCommandStatus(0, MF_SEPARATOR);
  CHECK(session.ide.status_line.texts.size() == texts);
}

TEST_CASE("items run the tools of what they name") {
  Project session;
  kesto::recentFiles->projects().addNew("C:\\old\\q.ide");
  session.ide.project.nodes[3].removed = true;
  const struct {
    int id;
    const char* run;     // null: nothing
    const char* status;  // null: says nothing
  } rows[] = {{200, "Project C:\\old\\q.ide", nullptr},
              {201, nullptr, "Internal error: not enough files"},
              {300, "RunExecutable C:\\p\\prog.exe", "Running"},
              {301, nullptr, "Internal error: not enough files"},
              {10000, "EditText C:\\p\\a.cpp", nullptr},
              {10001, "EditResource C:\\p\\b.rc", nullptr},
              {10002, nullptr, "Internal error: bad file"},
              {10003, nullptr, "Internal error: not enough files"}};
  for (const auto& row : rows) {
    CAPTURE(row.id);
    session.ide.tools.runs.clear();
    session.ide.status_line.texts.clear();
    session.command(row.id);
    CHECK(session.ide.tools.runs == (row.run != nullptr ? Texts{row.run} : Texts{}));
    CHECK(session.ide.status_line.texts == (row.status != nullptr ? Texts{row.status} : Texts{}));
  }
  // An editor that shows the file comes forward instead.
  const HWND editor = session.windows.editor("C:\\P\\A.CPP:2 *");
  session.windows.editor("C:\\p\\other.cpp");
  session.ide.tools.runs.clear();
  session.command(10000);
  CHECK(session.ide.tools.runs.empty());
  CHECK(GetWindow(session.windows.client, GW_CHILD) == editor);
  DestroyWindow(editor);
  session.ide.tools.result = kToolErrors;
  session.command(10000);
  CHECK(session.lastStatus() == "Tool: Errors");
}

TEST_CASE("a header is listed once, first when it was chosen, until it is gone") {
  Project session;
  kesto::RecentList& headers = kesto::recentFiles->headers();
  for (const char* path : {"C:\\p\\gone.h", "C:\\p\\a.h", "C:/p/./c.h"}) {
    headers.use(path);
  }
  const auto listed = [&] {
    Texts paths;
    for (int i = 0; i < headers.count(); ++i) {
      paths.emplace_back(headers.at(i));
    }
    return paths;
  };
  session.windows.editor("C:\\p\\a.h");
  session.windows.editor("C:\\p\\c.h:2 *");
  session.command(401);
  CHECK(listed() == Texts{"C:\\p\\a.h", "C:/p/./c.h", "C:\\p\\gone.h"});
  session.command(401);
  CHECK(listed() == Texts{"C:\\p\\c.h", "C:\\p\\a.h", "C:\\p\\gone.h"});
  CHECK(kesto::openAndRecord("C:\\p\\inc/../A.h"));
  CHECK(session.ide.tools.runs.empty());
  CHECK(listed() == Texts{"C:\\p\\A.h", "C:\\p\\c.h", "C:\\p\\gone.h"});
  session.command(402);
  CHECK(listed() == Texts{"C:\\p\\A.h", "C:\\p\\c.h"});
  CHECK(session.lastStatus() == "Cannot locate C:\\p\\gone.h");
  CHECK(session.ide.tools.runs.empty());
  const HMENU submenu = GetSubMenu(GetSubMenu(GetMenu(session.windows.bar), 0), 2);
  CHECK(BarSession::texts(submenu) == listed());
  // The Shift key asks for another view.
  const Held shift({VK_SHIFT});
  session.command(401);
  CHECK(session.ide.tools.runs == Texts{"EditText C:\\p\\c.h"});
}

TEST_CASE("keys held make other commands of a project file") {
  Project session;
  Adding adding;
  delete kesto::barMenu;
  kesto::barMenu = new kesto::BarMenu(session.windows.bar, adding);
  kesto::barMenu->rebuild();
  SetActiveWindow(session.windows.bar);
  {
    const Held alt({VK_MENU});
    session.command(10000);
    CHECK(adding.added == 2);
    CHECK(GetActiveWindow() == session.windows.frame);
  }
  {
    const Held ctrl({VK_CONTROL});
    session.command(10001);
    REQUIRE(kesto::recorded_boxes.size() == 1);
    CHECK(kesto::recorded_boxes[0].text == "Okay to remove\nb.rc : dialogs ?");
    CHECK(kesto::recorded_boxes[0].caption == "Confirmation");
    CHECK(kesto::recorded_boxes[0].flags == 4);
    CHECK(!session.ide.project.nodes[2].removed);
    // The answer is about the file that was named, and nothing is held until it comes.
    kesto::box_answer = 6;
    const int held = fake::live_references;
    kesto::while_box = [&] {
      CHECK(fake::live_references == held);
      session.ide.project.nodes[2].name = "C:\\p\\other.rc";
    };
    session.command(10001);
    kesto::while_box = nullptr;
    CHECK(!session.ide.project.nodes[2].removed);
    session.command(10001);
    CHECK(session.ide.project.nodes[2].removed);
  }
  {
    const Held both({VK_MENU, VK_CONTROL});
    session.command(10002);
    CHECK(session.ide.project.opened_alternatively == std::vector<ProjectNode>{4});
  }
  CHECK(session.ide.tools.runs.empty());
}

TEST_CASE("an open project view stands in for the project's menus") {
  const struct {
    int construction;
    int hides;
    bool menus_beside_view;
    bool menus;
  } rows[] = {{0, 0, true, true},     {1, 0, true, true},     {0, 1, false, true},
              {1, 1, false, true},    {2, 0, false, false},   {2, 1, false, false},
              {-50, 1, false, false}, {-49, 1, false, false}, {2147483647, 1, false, false}};
  for (const auto& row : rows) {
    CAPTURE(row.construction);
    CAPTURE(row.hides);
    Project session;
    kesto::topBar->useConstruction(row.construction);
    kesto::topBar->useHidesWithView(row.hides);
    const HWND view =
        session.windows.create(ideapi::kProjectClass, "", WS_CHILD, session.windows.client);
    session.command(103);
    CHECK((session.barTexts().size() == 2) == row.menus_beside_view);
    DestroyWindow(view);
    session.command(103);
    CHECK((session.barTexts().size() == 2) == row.menus);
  }
}

TEST_CASE("nodes come into the bar and leave it, however many at a time") {
  Project session;
  session.windows.drain();
  const auto rebuilds = [&] {
    const std::vector<int> ids = session.windows.commands();
    return std::count(ids.begin(), ids.end(), 103);
  };
  IProjectClient& client = *session.ide.project.clients.at(0);
  session.ide.project.nodes.push_back({0, "C:\\p\\TOOL.EXE", ".EXE", ""});
  session.ide.project.nodes.push_back({5, "C:\\p\\tool.cpp", ".CPP", ""});
  client.NodeAdded(5);
  client.NodeAdded(6);
  session.ide.project.nodes[1].removed = true;
  client.NodeRemoved(2);
  CHECK(rebuilds() == 1);
  session.command(103);
  CHECK(session.barTexts() == Texts{"Kesto", "prog.exe", "TOOL.EXE"});
  CHECK(BarSession::texts(GetSubMenu(GetMenu(session.windows.bar), 1)) == Texts{"b.rc", "c.cpp"});
  session.ide.tools.runs.clear();
  session.command(301);
  CHECK(session.ide.tools.runs == Texts{"RunExecutable C:\\p\\TOOL.EXE"});

  // Those of an open menu wait for its end.
  kesto::barMenu->menuOpened(true);
  client.NodeRemoved(3);
  CHECK(rebuilds() == 1);
  session.command(103);
  client.NodeRemoved(4);
  CHECK(rebuilds() == 1);
  session.command(103);
  kesto::barMenu->menuOpened(false);
  CHECK(rebuilds() == 1);
  session.command(103);
  session.ide.project.close();
  client.NodeAdded(5);
  CHECK(rebuilds() == 0);
}

TEST_CASE("a renamed node takes its item along") {
  Project session;
  session.ide.project.nodes.push_back({1, "C:\\p\\part.lib", ".lib", ""});
  session.ide.project.nodes.push_back({5, "C:\\p\\d.cpp", ".cpp", ""});
  kesto::topBar->useConstruction(1);
  session.command(103);
  CHECK(session.barTexts() == Texts{"Kesto", "prog.exe"});
  const auto rename = [&](ProjectNode node, const char* name) {
    session.ide.project.nodes[node - 1].name = name;
    session.ide.project.clients.at(0)->NodeChanged(node);
  };
  rename(3, "C:\\p\\R&D.rc");
  rename(5, "C:\\p\\core.lib");
  rename(1, "C:\\p\\other.exe");
  CHECK(session.barTexts() == Texts{"Kesto", "other.exe"});
  CHECK(session.mainTexts().at(0) == "run other.exe");
  const HMENU files = GetSubMenu(GetMenu(session.windows.bar), 1);
  CHECK(BarSession::texts(files) == Texts{"a.cpp", "R&&D.rc", "c.cpp", "core.lib"});
  CHECK(GetMenuItemID(files, 1) == 10001);
  session.ide.project.close();
  CHECK(session.barTexts() == Texts{"Kesto"});
}
