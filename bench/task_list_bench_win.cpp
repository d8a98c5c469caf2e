// A task list of ten thousand tasks against a plain list box that is filled with the same
// rows: opening the dialog, without tasks and with them, another order, and a state that is shown
// again. Prints milliseconds. No arguments.
//
// The plain list box has no hooks in its thread, which is the best case for it: a message
// hook, such as the add-on has in the IDE, would look at each row that is sent to it.
// "hooked-plain" and "hooked-order" are measured under one.
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "addon/foundation/file_system_win.h"
#include "addon/ide/current_project.h"
#include "addon/ide/environment.h"
#include "addon/tasks/task_dialog.h"
#include "addon/tasks/task_ids.h"
#include "bench/turns.h"

using namespace kesto;

namespace {

constexpr int kTasks = 10000;
constexpr int kRounds = 60;
constexpr int kHookedRounds = 2;

void addTasks(TaskList& tasks) {
  unsigned random = 12345;
  const auto below = [&](unsigned limit) {
    random = random * 1103515245U + 12345U;
    return (random >> 16) % limit;
  };
  const auto day = [&] {
    return TaskDate{static_cast<std::uint16_t>(1996 + below(4)),
                    static_cast<std::uint16_t>(1 + below(12)),
                    0,
                    static_cast<std::uint16_t>(1 + below(28)),
                    0,
                    0,
                    0,
                    0};
  };
  for (int i = 0; i < kTasks; ++i) {
    auto* task = new Task(day());
    task->name = ("Look after the frame " + std::to_string(below(100000))).c_str();
    task->state = static_cast<int>(below(kTaskStates));
    task->priority = static_cast<int>(below(20));
    task->end = day();
    tasks.append(task);
  }
  tasks.rebuildView();
}

std::vector<std::string> rowsOf(HWND list) {
  std::vector<std::string> rows;
  for (int i = 0; i < SendMessageA(list, LB_GETCOUNT, 0, 0); ++i) {
    char row[300] = "";
    SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(row));
    rows.emplace_back(row);
  }
  return rows;
}

// Painted as well: a person waits for that too.
void fillPlain(HWND list, const std::vector<std::string>& rows) {
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  SendMessageA(list, LB_RESETCONTENT, 0, 0);
  for (const std::string& row : rows) {
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
  }
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
  RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void chooseOrder(HWND dialog, WPARAM order) {
  const HWND combo = GetDlgItem(dialog, TASKS_ORDER);
  SendMessageA(combo, CB_SETCURSEL, order, 0);
  SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(TASKS_ORDER, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(combo));
  UpdateWindow(GetDlgItem(dialog, TASKS_LIST));
}

void switchState(HWND dialog, bool shown) {
  CheckDlgButton(dialog, TASKS_SHOW_FIRST, shown ? BST_CHECKED : BST_UNCHECKED);
  SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(TASKS_SHOW_FIRST, BN_CLICKED), 0);
  UpdateWindow(GetDlgItem(dialog, TASKS_LIST));
}

LRESULT CALLBACK idleHook(int code, WPARAM wParam, LPARAM lParam) {
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

int main() {
  AddonEnvironment environment{};
  environment.instance = GetModuleHandleA(nullptr);
  addonEnvironment = &environment;
  setProjectOpen(true);
  FileSystemWin files;
  TaskList tasks(files);
  addTasks(tasks);
  TaskDialog dialog(files, tasks);
  dialog.open(nullptr);
  const std::vector<std::string> rows = rowsOf(GetDlgItem(dialog.window(), TASKS_LIST));
  if (rows.size() != kTasks) {
    return 1;
  }
  RECT place = {};
  GetClientRect(GetDlgItem(dialog.window(), TASKS_LIST), &place);
  const HWND plain =
      CreateWindowExA(0, "ListBox", "", WS_POPUP | WS_VISIBLE | WS_VSCROLL | LBS_USETABSTOPS, 0, 0,
                      place.right, place.bottom, nullptr, nullptr, environment.instance, nullptr);
  const auto open = [&] {
    dialog.open(nullptr);
    UpdateWindow(dialog.window());
  };
  // The same dialog, with every task hidden and with every one shown.
  const auto closeAndShow = [&](bool shown) {
    dialog.close();
    std::fill(std::begin(tasks.show), std::end(tasks.show), shown ? 1 : 0);
    tasks.rebuildView();
  };
  const auto plainly = [&] { fillPlain(plain, rows); };
  const auto byType = [&] { chooseOrder(dialog.window(), 4); };
  const auto byStart = [&] { chooseOrder(dialog.window(), 1); };
  Turns turns;
  turns.add("plain", plainly);
  turns.add("bare", open, [&] { closeAndShow(false); });
  turns.add("open", open, [&] { closeAndShow(true); });
  turns.add("order", byType, byStart);
  turns.add(
      "state", [&] { switchState(dialog.window(), true); },
      [&] { switchState(dialog.window(), false); });
  turns.run(kRounds);
  Turns hooked;
  hooked.add("hooked-plain", plainly);
  hooked.add("hooked-order", byType, byStart);
  const HHOOK hook = SetWindowsHookExA(WH_CALLWNDPROC, idleHook, nullptr, GetCurrentThreadId());
  hooked.run(kHookedRounds);
  UnhookWindowsHookEx(hook);
  dialog.close();
  DestroyWindow(plain);
  addonEnvironment = nullptr;
  return 0;
}
