// typing_bench_win FOLDER [ADDON]   prints a line for each kind of key: its name, and the
// milliseconds of process time a key takes in the Workbench and in an edit control of the
// system that holds the same text.
//
// FOLDER gets a source of a hundred thousand lines. Both are in one process, have the
// same size and get the same keys in the same way: posted one at a time, each handled
// with all that it brings about before the next one comes.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "workbench/app/application.h"
#include "workbench/editor/file_store.h"
#include "workbench/windows/command_ids.h"

namespace {

using namespace workbench;

constexpr int kLines = 100000;
constexpr int kMiddle = kLines / 2;
constexpr int kRounds = 5;

struct Kind {
  const char* name;
  std::vector<WORD> keys;  // pressed in turn
  int count;
  bool two_views;
};

// Those who are typed into.
struct Typist {
  HWND top;
  HWND text;
  std::function<void()> to_the_middle;
};

std::string sourceText() {
  std::string text;
  for (int i = 0; i < kLines; ++i) {
    char line[80];
    snprintf(line, sizeof line, "  total_%d += value(%d) * 2;  // the %dth\r\n", i % 97, i, i);
    text += line;
  }
  return text;
}

void handleAll() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}

double processMilliseconds() {
  FILETIME created, ended, kernel, user;
  GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
  const auto ticks = [](const FILETIME& time) {
    return static_cast<double>(time.dwHighDateTime) * 4294967296.0 + time.dwLowDateTime;
  };
  return (ticks(kernel) + ticks(user)) / 1e4;
}

double timeOfKey(const Typist& typist, const Kind& kind) {
  SetForegroundWindow(typist.top);
  SetFocus(typist.text);
  typist.to_the_middle();
  handleAll();
  const double begun = processMilliseconds();
  for (int i = 0; i < kind.count; ++i) {
    const WORD key = kind.keys[static_cast<std::size_t>(i) % kind.keys.size()];
    PostMessageA(typist.text, WM_KEYDOWN, key, 1);
    handleAll();
    PostMessageA(typist.text, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    handleAll();
  }
  return (processMilliseconds() - begun) / kind.count;
}

Typist typistOf(Application& application) {
  EditorWindow* editor = application.activeEditor();
  return {application.frame(), editor->textWindow(), [editor] { editor->setCaret(kMiddle, 1); }};
}

Typist systemEdit(const std::string& text, SIZE size) {
  const HWND top = CreateWindowExA(0, "Static", "Edit", WS_POPUP | WS_VISIBLE, 0, 60, size.cx,
                                   size.cy, nullptr, nullptr, nullptr, nullptr);
  const HWND edit = CreateWindowExA(0, "Edit", "",
                                    WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE |
                                        ES_AUTOVSCROLL | ES_AUTOHSCROLL | ES_WANTRETURN,
                                    0, 0, size.cx, size.cy, top, nullptr, nullptr, nullptr);
  SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT)), 0);
  SendMessageA(edit, EM_LIMITTEXT, 0x7FFFFFFE, 0);
  SetWindowTextA(edit, text.c_str());
  return {top, edit, [edit] {
            const LRESULT place = SendMessageA(edit, EM_LINEINDEX, kMiddle, 0);
            SendMessageA(edit, EM_SETSEL, static_cast<WPARAM>(place), place);
            SendMessageA(edit, EM_SCROLLCARET, 0, 0);
          }};
}

void compare(const Kind& kind, const Typist& program, const Typist& edit) {
  double best[2] = {1e9, 1e9};
  for (int round = 0; round < kRounds; ++round) {
    best[0] = std::min(best[0], timeOfKey(program, kind));
    best[1] = std::min(best[1], timeOfKey(edit, kind));
  }
  printf("%s %.3f %.3f\n", kind.name, best[0], best[1]);
  fflush(stdout);
}

int measure(const std::string& folder, const char* addon) {
  const std::string text = sourceText();
  Application application;
  application.events().setOutput(false);
  std::string reason;
  DiskStore store;
  if (store.write(folder + "\\long.cpp", text) != FileFault::kNone ||
      (addon != nullptr && !application.startAddon(addon, &reason)) ||
      !application.createFrame(GetModuleHandleA(nullptr), false) || !application.openPath(folder)) {
    return 1;
  }
  ShowWindow(application.frame(), SW_SHOW);
  EditorWindow* editor = application.editFile("long.cpp", 1);
  if (editor == nullptr) {
    return 1;
  }
  RECT place = {};
  GetWindowRect(editor->textWindow(), &place);
  Typist program = typistOf(application);
  const Typist edit = systemEdit(text, {place.right - place.left, place.bottom - place.top});
  const Kind kinds[] = {
      {"letters", {'A', 'B', 'C'}, 100, false},
      {"enter-and-backspace", {VK_RETURN, VK_BACK}, 60, false},
      {"down", {VK_DOWN}, 100, false},
      {"page-down", {VK_NEXT}, 60, false},
      {"letters-in-two-views", {'A', 'B', 'C'}, 60, true},
      {"enter-and-backspace-in-two-views", {VK_RETURN, VK_BACK}, 60, true},
  };
  for (const Kind& kind : kinds) {
    if (kind.two_views && application.activeEditor() == editor) {
      application.frameCommand(CM_WINDOW_NEW_VIEW);
      application.frameCommand(CM_WINDOW_TILE);
      program = typistOf(application);
    }
    compare(kind, program, edit);
  }
  application.frameClosing();
  DestroyWindow(application.frame());
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    return 2;
  }
  return measure(arguments[1], count > 2 ? arguments[2] : nullptr);
}
