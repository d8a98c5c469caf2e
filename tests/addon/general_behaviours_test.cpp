#include "addon/behaviours/general_behaviours.h"

#include "addon/foundation/settings_store.h"
#include "addon/ide/current_project.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"

namespace {

// What the windows were told, in order, as "CLASS what".
std::vector<std::string> told;
WindowFixture* fixture = nullptr;

HWND createDocument(const char* window_class);

LRESULT CALLBACK tellingProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  char name[80] = "";
  GetClassNameA(window, name, sizeof name);
  if (message == WM_COMMAND) {
    told.push_back(std::string(name) + ' ' + std::to_string(wParam));
    if (wParam == static_cast<WPARAM>(ideapi::kCommandShowProject)) {
      createDocument(ideapi::kProjectClass);
    } else if (wParam == static_cast<WPARAM>(ideapi::kCommandShowMessages) &&
               FindWindowExA(fixture->client, nullptr, ideapi::kMessageClass, nullptr) == nullptr) {
      createDocument(ideapi::kMessageClass);
    }
    return 0;
  }
  if (message == WM_LBUTTONDOWN) {
    told.push_back(std::string(name) + " click " + std::to_string(LOWORD(lParam)) + ',' +
                   std::to_string(HIWORD(lParam)) + (wParam == MK_LBUTTON ? "" : " odd"));
    return 0;
  }
  if (message == WM_SYSCOMMAND) {
    told.push_back(std::string(name) + (wParam == SC_CLOSE      ? " close"
                                        : wParam == SC_MINIMIZE ? " minimise"
                                        : wParam == SC_RESTORE  ? " restore"
                                                                : " other"));
    if (wParam == SC_CLOSE) {
      DestroyWindow(window);
    }
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

HWND telling(HWND window) {
  SetWindowLongA(window, GWL_WNDPROC, reinterpret_cast<LONG>(tellingProcedure));
  return window;
}

HWND createDocument(const char* window_class) {
  const HWND document = telling(fixture->create(window_class, "", WS_CHILD, fixture->client));
  if (strcmp(window_class, ideapi::kMessageClass) == 0) {
    const HWND pane = telling(fixture->create(ideapi::kOwlWindowClass, "", WS_CHILD, document));
    telling(fixture->create(ideapi::kNoteTabClass, "", WS_CHILD, pane));
    telling(fixture->create(ideapi::kMessageViewerClass, "", WS_CHILD, pane));
  }
  return document;
}

HWND document(const char* window_class) {
  return FindWindowExA(fixture->client, nullptr, window_class, nullptr);
}

RECT placeOf(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  return place;
}

struct Making : BarSession {
  Making() {
    for (const char* name : {ideapi::kMessageClass, ideapi::kOwlWindowClass, ideapi::kNoteTabClass,
                             ideapi::kMessageViewerClass}) {
      WNDCLASSA window_class = {};
      window_class.lpfnWndProc = DefWindowProcA;
      window_class.hInstance = GetModuleHandleA(nullptr);
      window_class.lpszClassName = name;
      RegisterClassA(&window_class);
    }
    fixture = &windows;
    told.clear();
    telling(windows.frame);
  }
  ~Making() { fixture = nullptr; }
  void ticks(int count) {
    for (int i = 0; i < count; ++i) {
      kesto::generalBehaviours->timerTick();
    }
  }
};

}  // namespace

TEST_CASE("a make takes its windows away and puts them back") {
  Making session;
  session.create();
  session.openProject("C:\\p.ide");
  REQUIRE(session.ide.make.clients.size() == 1);
  IMakeClient* client = session.ide.make.clients[0];
  MoveWindow(createDocument(ideapi::kProjectClass), 11, 22, 150, 90, FALSE);
  const RECT project = placeOf(document(ideapi::kProjectClass));
  // The box of the compiler's progress is a document window here.
  telling(session.windows.create("#32770", "", WS_CHILD, session.windows.client));

  client->MakeStarted();
  CHECK(told == std::vector<std::string>{"CPPFRAME 13252", "OWL_NoteTab click 20,11",
                                         "MsgViewer 1722", "BCW5Message close", "BCW5Project close",
                                         "#32770 minimise"});
  told.clear();
  client->MakeEnded(0);
  CHECK(told == std::vector<std::string>{"CPPFRAME 13251", "CPPFRAME 13252", "#32770 restore"});
  REQUIRE(document(ideapi::kProjectClass) != nullptr);
  const RECT again = placeOf(document(ideapi::kProjectClass));
  CHECK(EqualRect(&again, &project));
  CHECK(document(ideapi::kMessageClass) != nullptr);
  // The box was restored and is forgotten.
  told.clear();
  client->MakeEnded(0);
  CHECK(told == std::vector<std::string>{"CPPFRAME 13251", "CPPFRAME 13252"});
}

TEST_CASE("the status box is a document, a window of its own, or none") {
  Making session;
  session.create();
  const HWND box = telling(session.windows.create("#32770", "", WS_POPUP, nullptr));
  kesto::generalBehaviours->makeStarted();
  CHECK(told.back() == "#32770 minimise");
  // A document goes before it.
  const HWND inner = session.windows.create("#32770", "", WS_CHILD, session.windows.client);
  kesto::generalBehaviours->makeStarted();
  CHECK(told.back() == "BCW5Message close");
  CHECK(IsIconic(inner));
  DestroyWindow(inner);
  DestroyWindow(box);
  SetActiveWindow(session.windows.frame);
  kesto::generalBehaviours->makeStarted();
  kesto::generalBehaviours->makeEnded();
  CHECK(told.back() == "CPPFRAME 13252");
}

TEST_CASE("what is switched off is left alone") {
  Making session;
  for (const char* name :
       {"ClearOnMake", "CloseOnMake", "CloseProjectOnMake", "IconizeStatusOnMake"}) {
    kesto::settings().writeInteger("General", name, 0);
  }
  kesto::settings().writeInteger("General", "ViewOnOpen", 1);
  session.create();
  createDocument(ideapi::kProjectClass);
  kesto::generalBehaviours->makeStarted();
  kesto::generalBehaviours->makeEnded();
  CHECK(told.empty());
  CHECK(document(ideapi::kProjectClass) != nullptr);

  session.openProject("C:\\p.ide");
  session.windows.drain();
  CHECK(told == std::vector<std::string>{"CPPFRAME 13251"});
  EnableWindow(session.windows.frame, FALSE);
  session.openProject("C:\\p.ide");
  session.windows.drain();
  EnableWindow(session.windows.frame, TRUE);
  CHECK(told.size() == 1);
}

TEST_CASE("modified buffers are saved when the minutes are over") {
  Making session;
  session.create();
  fake::Editor& editor = session.ide.editor;
  session.ticks(300);
  CHECK(editor.savings == 0);  // no project
  session.openProject("C:\\p.ide");
  editor.modified = "A.CPP, B.H";
  session.ticks(299);
  CHECK(editor.savings == 0);
  session.ticks(1);
  CHECK(session.lastStatus() == "Auto-save (5 min) : A.CPP, B.H.");
  // Nothing to save says nothing.
  session.ide.status_line.texts.clear();
  session.ticks(300);
  CHECK(editor.savings == 2);
  CHECK(session.ide.status_line.texts.empty());
  // Opening a project and the IDE's own saving start the time anew.
  session.ticks(299);
  session.openProject("C:\\q.ide");
  session.ticks(299);
  kesto::generalBehaviours->resetAutoSave();
  session.ticks(299);
  CHECK(editor.savings == 2);
  // A dialog is up: the time is over all the same.
  EnableWindow(session.windows.frame, FALSE);
  session.ticks(1);
  EnableWindow(session.windows.frame, TRUE);
  session.ticks(299);
  CHECK(editor.savings == 2);
}

TEST_CASE("periods of any size, and none") {
  const struct {
    int minutes;
    int on;
    int savings;  // after a hundred seconds
  } rows[] = {{1, 1, 1}, {2, 1, 0}, {2000000000, 1, 0}, {1, 0, 0}};
  for (const auto& row : rows) {
    Making session;
    kesto::settings().writeInteger("General", "TimerCount", row.minutes);
    kesto::settings().writeInteger("General", "TimerSave", row.on);
    session.create();
    session.openProject("C:\\p.ide");
    session.ticks(100);
    CHECK(session.ide.editor.savings == row.savings);
    kesto::generalBehaviours->writeOptions();
    CHECK(kesto::settings().readInteger("General", "TimerCount", -1) == row.minutes);
    CHECK(kesto::settings().readInteger("General", "Unic", -1) == 0);
  }
}
