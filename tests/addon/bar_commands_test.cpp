// The bar's menus and their commands, with a project in the played IDE.
#include "addon/topbar/bar_commands.h"

#include "addon/ide/project_client.h"
#include "addon/topbar/command_table.h"
#include "addon/topbar/recent_files.h"
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
  std::string statusOf(int id) {
    kesto::showCommandStatus(id, 0);
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

TEST_CASE("items tell what they would do, and run the tools of what they name") {
  Project session;
  kesto::recentFiles->projects().addNew("C:\\old\\q.ide");
  kesto::recentFiles->headers().use("C:\\p\\a.h");
  session.ide.project.nodes[3].removed = true;
  const struct {
    int id;
    const char* told;
    Texts run;
    Texts status;  // of the run
  } rows[] = {{200, "Switch to project C:\\old\\q.ide", {"Project C:\\old\\q.ide"}, {}},
              {300, "Run prog.exe : the program", {"RunExecutable C:\\p\\prog.exe"}, {"Running"}},
              {301, "Run nothing !", {}, {"Internal error: not enough files"}},
              {400, "Open C:\\p\\a.h", {}, {"Cannot locate C:\\p\\a.h"}},
              {10000, "Open a.cpp", {"EditText C:\\p\\a.cpp"}, {}},
              {10001, "Open b.rc : dialogs", {"EditResource C:\\p\\b.rc"}, {}},
              {10002, "Open a bad file in the project ...", {}, {"Internal error: bad file"}},
              {10003, "Open a file in the project ...", {}, {"Internal error: not enough files"}},
              {19999, "Open a file in the project ...", {}, {"Internal error: not enough files"}},
              {171, " ", {}, {}},
              {20000, " ", {}, {}}};
  for (const auto& row : rows) {
    CAPTURE(row.id);
    CHECK(session.statusOf(row.id) == row.told);
    session.ide.tools.runs.clear();
    session.ide.status_line.texts.clear();
    session.command(row.id);
    CHECK(session.ide.tools.runs == row.run);
    CHECK(session.ide.status_line.texts == row.status);
  }
  session.ide.status_line.texts.clear();
  kesto::showCommandStatus(300, MF_POPUP);
  kesto::showCommandStatus(0, MF_SEPARATOR);
  CHECK(session.ide.status_line.texts.empty());
  session.ide.tools.result = kToolErrors;
  session.command(10000);
  CHECK(session.lastStatus() == "Tool: Errors");
}

TEST_CASE("the menus take in a node that the IDE does not tell of") {
  Project session;
  session.windows.commands();
  kesto::projectTestA->tellAdded(2);
  CHECK(session.windows.commands() == std::vector<int>{103});
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
