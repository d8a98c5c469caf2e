// The built DLL itself, loaded as an IDE loads it.
#include <windows.h>

#include <cstring>
#include <map>
#include <sstream>
#include <string>

#include "addon/foundation/settings_store.h"
#include "addon/ide/project_options.h"
#include "doctest.h"
#include "tests/addon/fake_ide.h"
#include "tests/addon/window_fixture.h"
#include "tests/foundation/registry_tree.h"
#include "workbench/script/memory_count.h"

namespace {

struct Counts {
  long blocks = 0;
  int gdi = 0;
  int windows = 0;
  int menus = 0;
};

// Other programs' windows come and go as they like.
bool isOwnWindow(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process == GetCurrentProcessId();
}

// Wine has no count of a process's handles, but it answers for any low word.
Counts countAll() {
  Counts counts;
  counts.blocks = workbench::countMemory().blocks;
  for (unsigned low = 1; low < 0x10000; ++low) {
    counts.gdi += GetObjectType(reinterpret_cast<HGDIOBJ>(low)) != 0;
    counts.windows += isOwnWindow(reinterpret_cast<HWND>(low));
    counts.menus += IsMenu(reinterpret_cast<HMENU>(low)) != FALSE;
  }
  return counts;
}

void checkCounts(const Counts& before) {
  const Counts after = countAll();
  // The system's own come and go; what a round leaves would be there a hundred times.
  CHECK(after.blocks < before.blocks + 50);
  CHECK(after.gdi == before.gdi);
  CHECK(after.windows == before.windows);
  CHECK(after.menus == before.menus);
}

// The bar of this process, whichever others there are.
HWND ownBar() {
  HWND bar = nullptr;
  while ((bar = FindWindowExA(nullptr, bar, "KADO", nullptr)) != nullptr) {
    if (isOwnWindow(bar)) {
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

// The add-on's own root: the built DLL knows no other.
constexpr char kRoot[] = "SOFTWARE\\Borland\\Borland C++\\5.0\\Ide\\AddOns\\Kestoaob";

// The built DLL between its two calls.
class Session {
 public:
  explicit Session(fake::Ide& ide) : module_(LoadLibraryA("Kestoaob.dll")) {
    // A frame that is there already would be another IDE's.
    kesto::settings().setRoot(kRoot);
    kesto::settings().writeInteger("General", "Unic", 0);
    REQUIRE(module_ != nullptr);
    entry_ = reinterpret_cast<ideapi::AddonEntry>(
        reinterpret_cast<void*>(GetProcAddress(module_, ideapi::kAddonEntryName)));
    REQUIRE((entry_ != nullptr));
    ide.AddRef();
    entry_(reinterpret_cast<int>(static_cast<IIde*>(&ide)));
    CHECK(ownBar() != nullptr);
    drain();
  }
  ~Session() {
    entry_(0);
    CHECK(ownBar() == nullptr);
    RegDeleteKeyA(HKEY_LOCAL_MACHINE, (std::string(kRoot) + "\\General").c_str());
    kesto::settings().writeInteger("TopBar", "NbIDE", 0);
    FreeLibrary(module_);
    CHECK(GetModuleHandleA("Kestoaob.dll") == nullptr);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

 private:
  HMODULE module_;
  ideapi::AddonEntry entry_ = nullptr;
};

// One session, with messages for the hooks to see before and after it.
void runOnce(fake::Ide& ide) {
  { const Session session(ide); }
  // A hook left behind would now run in memory that is gone.
  DestroyWindow(CreateWindowExA(0, "STATIC", "after", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 90,
                                60, nullptr, nullptr, nullptr, nullptr));
  drain();
}

// Ends every menu and answers every box of the thread, whose loops it is called from.
class EndsModalLoops {
 public:
  EndsModalLoops()
      : timer_(SetTimer(nullptr, 0, 1, endMenu)),
        boxes_(SetWindowsHookExA(WH_CBT, answerBox, nullptr, GetCurrentThreadId())) {
    menus = 0;
    boxes = 0;
  }
  ~EndsModalLoops() {
    KillTimer(nullptr, timer_);
    UnhookWindowsHookEx(boxes_);
  }
  EndsModalLoops(const EndsModalLoops&) = delete;
  EndsModalLoops& operator=(const EndsModalLoops&) = delete;

  static int menus;
  static int boxes;

 private:
  static void CALLBACK endMenu(HWND, UINT, UINT_PTR, DWORD) {
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetCurrentThreadId(), &thread);
    if ((thread.flags & GUI_INMENUMODE) != 0) {
      ++menus;
      EndMenu();
    }
  }
  static LRESULT CALLBACK answerBox(int code, WPARAM wParam, LPARAM lParam) {
    char name[10] = "";
    GetClassNameA(reinterpret_cast<HWND>(wParam), name, sizeof name);
    if (code == HCBT_ACTIVATE && strcmp(name, "#32770") == 0) {
      ++boxes;
      PostMessageA(reinterpret_cast<HWND>(wParam), WM_COMMAND, IDOK, 0);
      PostMessageA(reinterpret_cast<HWND>(wParam), WM_COMMAND, IDCANCEL, 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  UINT_PTR timer_;
  HHOOK boxes_;
};

int EndsModalLoops::menus = 0;
int EndsModalLoops::boxes = 0;

void plantRecipients(fake::Project& project, char count) {
  project.options["Kesto_NB_MAIL"] = {count, 0, 0, 0};
  for (int i = 0; i < count; ++i) {
    project.options[kesto::entryOptionName("Kesto_MAIL_PJ_", i)] =
        std::string("+recipient", sizeof "+recipient");
  }
}

constexpr WPARAM kHelpCommand = 196;

}  // namespace

TEST_CASE("a hundred sessions in one process leave nothing behind") {
  fake::Ide ide;
  // The first one makes the system load and keep what it needs.
  runOnce(ide);
  // The delivery tool takes the place of one of its name, and goes with the session.
  CHECK(ide.tools.steps ==
        "delete\ncreate\nposition -3\nname KestoDelivery\nflags 8448\n"
        "description Kesto Project delivery\nmenu Kesto &Delivery\n"
        "text [Kesto AddOn extension]\nimplementor\nadd\ndelete\n");
  const int references = fake::live_references;
  const Counts before = countAll();
  for (int i = 0; i < 100; ++i) {
    runOnce(ide);
  }
  checkCounts(before);
  CHECK(fake::live_references == references);
}

TEST_CASE("an IDE without services survives every command") {
  fake::Ide ide;
  ide.services.clear();
  ide.stream.disk = "#include <a.h>\nint f(void)\n";
  WindowFixture windows;
  const HWND editor = windows.editor("C:\\A.CPP");
  EndsModalLoops loops;
  {
    const Session session(ide);
    // The options service is asked for at the start.
    CHECK(EndsModalLoops::boxes == 1);
    const HWND bar = ownBar();
    const auto send_up_to = [bar](WPARAM last, HWND window) {
      for (WPARAM id = 0; id <= last; ++id) {
        // The help viewer is another program, and no service.
        if (id != kHelpCommand) {
          SendMessageA(bar, WM_COMMAND, id, reinterpret_cast<LPARAM>(window));
          SendMessageA(bar, WM_MENUSELECT, id, 0);
        }
      }
    };
    send_up_to(20000, nullptr);
    send_up_to(199, editor);
    // Functions, includes, searches and documentation, with each window.
    CHECK(EndsModalLoops::menus == 8);
    drain();
  }
  // Each of the four searches asked for a name both times, and each dialog of groupware for
  // a server directory.
  CHECK(EndsModalLoops::boxes == 1 + 8 + 4);
  // What was never set is written as it was read.
  char filters[80] = "";
  CHECK(kesto::settings().readString("Groupware", "Filters", filters, sizeof filters, nullptr));
  CHECK(std::string(filters) == "*.cpp;*.cc;*.c;*.h;*.rh;*.rc;*.bmp;*.ico;*.gif");
  CHECK(kesto::settings().readInteger("Groupware", "Enabled", -1) == 1);
  CHECK(kesto::settings().readInteger("Groupware", "MailOnGet", -1) == 0);
  CHECK(kesto::settings().readInteger("Groupware", "MailOnSend", -1) == 1);
}

TEST_CASE("popups, menus and projects come and go and leave nothing") {
  fake::Ide ide;
  ide.stream.disk = "#include <a.h>\nint f(void)\nvoid A::g()\n";
  ide.project.nodes = {{0, "C:\\p\\prog.exe", ".exe", ""},
                       {1, "C:\\p\\a.cpp", ".cpp", ""},
                       {1, "lib", "Folder", ""},
                       {3, "C:\\p\\b.cpp", ".cpp", ""}};
  WindowFixture windows;
  plantRecipients(ide.project, 3);
  const HWND editor = windows.editor("C:\\A.CPP");
  EndsModalLoops loops;
  const Session session(ide);
  const auto round = [&](int construction) {
    ide.project.options["Kesto_HIERARCH"] = {static_cast<char>(construction), 0, 0, 0};
    ide.project.options["KestoGroupwareServer"] = std::string("~C:\\nowhere", 12);
    ide.project.loaded = true;
    ide.project.open("C:\\p\\p.ide");
    CHECK(GetMenuItemCount(GetMenu(ownBar())) == (construction == 0 ? 3 : 2));
    for (const WPARAM command : {103, 111, 175, 176, 187, 188, 189, 197}) {
      SendMessageA(ownBar(), WM_COMMAND, command, reinterpret_cast<LPARAM>(editor));
    }
    ide.project.close();
    ide.project.asked.clear();
    drain();
  };
  round(0);
  const Counts before = countAll();
  CHECK(before.windows > 0);
  const int references = fake::live_references;
  for (int i = 0; i < 50; ++i) {
    round(1);
    round(0);
  }
  CHECK(EndsModalLoops::menus == 4 * 101);
  checkCounts(before);
  CHECK(fake::live_references == references);
}

TEST_CASE("a project that is open at the start is no recent one") {
  kesto::SettingsStore& store = kesto::settings();
  store.setRoot(kRoot);
  store.writeInteger("TopBar", "NbIDE", 2);
  store.writeString("TopBar\\IDE", "Entry0", "C:\\p\\p.ide");
  store.writeString("TopBar\\IDE", "Entry1", "C:\\q.ide");
  fake::Ide ide;
  ide.project.loaded = true;
  ide.project.project.file = "C:\\p\\p.ide";
  plantRecipients(ide.project, 2);
  ide.project.options["Kesto_WITHDELIVERY"] = std::string(4, '\0');
  const std::map<std::string, std::string> options = ide.project.options;
  const Session session(ide);
  CHECK(ide.tools.steps.empty());
  // Its recipients were read, if late.
  ide.project_save.clients[0]->ProjectSaving();
  for (const auto& [name, value] : options) {
    CHECK(ide.project.options[name] == value);
  }
  const HMENU menu = GetSubMenu(GetMenu(ownBar()), 0);
  char text[80] = "";
  GetMenuStringA(menu, 200, text, sizeof text, MF_BYCOMMAND);
  CHECK(std::string(text) == "q.ide");
  CHECK(GetMenuState(menu, 201, MF_BYCOMMAND) == static_cast<UINT>(-1));
}

namespace {

struct Section {
  const char* name;
  std::string values;  // "NAME=VALUE", a blank between
};

void forEachValue(const Section& section,
                  void (*act)(const char* section, const char* name, const std::string& value)) {
  std::istringstream values(section.values);
  for (std::string value; values >> value;) {
    const std::string name = value.substr(0, value.find('='));
    act(section.name, name.c_str(), value.substr(name.size() + 1));
  }
}

void checkStored(const Section& wanted) {
  forEachValue(wanted, [](const char* section, const char* name, const std::string& value) {
    CAPTURE(section);
    CAPTURE(name);
    char text[kesto::SettingsStore::kValueSize] = "";
    kesto::settings().readString(section, name, text, sizeof text, "missing");
    CHECK(text == value);
  });
}

}  // namespace

TEST_CASE("settings go back under their names, with the values that were read") {
  const Section sections[] = {
      {"TopBar",
       "Enabled=0 HideWithBCW=0 HideWithView=1 AlwaysOnTop=1 EditOtherView=1 LeftMargin=-2049 "
       "RightMargin=4711 MenuSize=7 Hierarchical=2"},
      {"Menus", "Enabled=0 Size=11 Sorted=0"},
      {"QuickFind",
       "FunctionMask=*.c IncludeMask= TxtFunction=F1 TxtMethod=F2 TxtClass=F3 TxtCross=F4 "
       "Recurse=0 LeftSide=0 KeyFunction=112 KeyMethod=7113 KeyClass=114 KeyCross=115"},
      {"Completion", "Enabled=0 KeyCode=4032 TextCode=Ctrl+Space NbFiles=2"},
      {"Completion\\Files", "Entry0=C:\\two.kwd Entry1=one.kwd"},
      {"Tasks",
       "FlashToDo=0 FlashCoded=2 FlashTested=3 FlashEnded=7 MainOn=0 KeyIsDelivery=0 "
       "EndedReadOnly=0 AutoFlash=0 Types=" +
           std::string(511, 'x')}};
  kesto::settings().setRoot(kRoot);
  for (const Section& section : sections) {
    forEachValue(section, [](const char* in, const char* name, const std::string& value) {
      // A list of types longer than there is room for is cut.
      const std::string text = value + (strcmp(name, "Types") == 0 ? ";y" : "");
      kesto::settings().writeString(in, name, text.c_str());
    });
  }
  fake::Ide ide;
  {
    const Session session(ide);
    removeTree(HKEY_LOCAL_MACHINE, kRoot);
  }
  for (const Section& section : sections) {
    checkStored(section);
  }
  removeTree(HKEY_LOCAL_MACHINE, kRoot);
  { const Session session(ide); }
  checkStored({"Tasks",
               "FlashToDo=1 FlashCoded=1 FlashTested=1 FlashEnded=0 MainOn=1 KeyIsDelivery=1 "
               "EndedReadOnly=1 AutoFlash=1 Types=Design;Evolution;Bug;Documentation"});
}
