#include "ideapi/ide_interfaces.h"
#include "workbench/building.h"
#include "workbench/editing.h"
#include "workbench/editor/editor_window.h"
#include "workbench/main_window.h"
#include "workbench/paths.h"
#include "workbench/projects.h"
#include "workbench/script/steps.h"
#include "workbench/script/window_text.h"

namespace workbench {
namespace {

constexpr long kMostLines = 10000000;

StepResult noEditor(StepTry& step) {
  return step.again("no editor is open", 2000);
}

// The control with the keyboard focus when it is one of a dialog's, else null.
HWND focusedControl(const StepTry& step) {
  HWND dialog = step.stage.observer.windows().dialog();
  HWND focus = GetFocus();
  return dialog != nullptr && focus != nullptr && IsChild(dialog, focus) ? focus : nullptr;
}

}  // namespace

StepResult stepOpen(StepTry& step) {
  std::string path = step.stage.paths.resolve(step.arg(0));
  return step.stage.projects.openPath(path) ? StepResult::kDone
                                            : step.fail("could not open " + path);
}

StepResult stepClose(StepTry& step) {
  bool closed = step.stage.projects.closeProject();
  return closed ? StepResult::kDone : step.fail("the project was not closed");
}

StepResult stepEdit(StepTry& step) {
  long line = 0;
  if (step.argCount() == 2 && !step.number(1, 1, kMostLines, &line)) {
    return StepResult::kFailed;
  }
  std::string path = step.stage.paths.resolve(step.arg(0));
  bool shown = step.stage.editing.editFile(path, static_cast<int>(line)) != nullptr;
  return shown ? StepResult::kDone : step.fail("could not edit " + path);
}

StepResult stepMake(StepTry& step) {
  if (step.argCount() == 0) {
    return step.stage.building.startMake() ? StepResult::kDone
                                           : step.fail("the make did not start");
  }
  const bool failed = step.arg(0) == "fail";
  if (!failed && step.arg(0) != "ok") {
    return step.fail("a make ends with ok or fail");
  }
  step.stage.building.make(failed ? kMakeFailed : kMakeSucceeded);
  return StepResult::kDone;
}

StepResult stepSave(StepTry& step) {
  EditorWindow* editor = step.argCount() == 1
                             ? step.stage.editing.findEditor(step.stage.paths.resolve(step.arg(0)))
                             : step.stage.editing.activeEditor();
  if (editor == nullptr) {
    return noEditor(step);
  }
  // The editor may be gone when a box has been answered.
  const std::string file = editor->file();
  return editor->save() ? StepResult::kDone : step.fail("could not save " + file);
}

StepResult stepType(StepTry& step) {
  if (HWND control = focusedControl(step)) {
    for (char c : step.arg(0)) {
      PostMessageA(control, WM_CHAR, static_cast<BYTE>(c), 1);
    }
    return StepResult::kDone;
  }
  EditorWindow* editor = step.stage.editing.activeEditor();
  if (editor == nullptr) {
    return noEditor(step);
  }
  editor->type(step.arg(0));
  return StepResult::kDone;
}

StepResult stepCaret(StepTry& step) {
  long line = 0, column = 0;
  if (!step.number(0, 1, kMostLines, &line) || !step.number(1, 1, kMostLines, &column)) {
    return StepResult::kFailed;
  }
  EditorWindow* editor = step.stage.editing.activeEditor();
  if (editor == nullptr) {
    return noEditor(step);
  }
  editor->setCaret(static_cast<int>(line), static_cast<int>(column));
  return StepResult::kDone;
}

StepResult stepSelect(StepTry& step) {
  long at[4];
  for (size_t i = 0; i < 4; ++i) {
    if (!step.number(i, 1, kMostLines, &at[i])) {
      return StepResult::kFailed;
    }
  }
  EditorWindow* editor = step.stage.editing.activeEditor();
  if (editor == nullptr) {
    return noEditor(step);
  }
  editor->select(static_cast<int>(at[0]), static_cast<int>(at[1]), static_cast<int>(at[2]),
                 static_cast<int>(at[3]));
  return StepResult::kDone;
}

StepResult stepMinimize(StepTry& step) {
  HWND frame = step.stage.window.frame();
  if (step.attempt == 0) {
    ShowWindow(frame, SW_MINIMIZE);
  }
  return IsIconic(frame) ? StepResult::kDone : step.again("the frame is not minimized");
}

StepResult stepMaximize(StepTry& step) {
  HWND frame = step.stage.window.frame();
  if (step.attempt == 0) {
    ShowWindow(frame, SW_MAXIMIZE);
  }
  return IsZoomed(frame) ? StepResult::kDone : step.again("the frame is not maximized");
}

StepResult stepRestore(StepTry& step) {
  HWND frame = step.stage.window.frame();
  if (step.attempt == 0) {
    ShowWindow(frame, SW_RESTORE);
  }
  return IsIconic(frame) ? step.again("the frame is not restored") : StepResult::kDone;
}

StepResult stepActivate(StepTry& step) {
  HWND frame = step.stage.window.frame();
  SetForegroundWindow(frame);
  if (step.stage.elsewhere != nullptr) {
    ShowWindow(step.stage.elsewhere, SW_HIDE);
  }
  bool active = GetActiveWindow() == frame || GetLastActivePopup(frame) == GetActiveWindow();
  return active ? StepResult::kDone : step.again("the frame does not become active");
}

// A second IDE may also end at once, for the sake of the one that runs.
StepResult stepOtherIde(StepTry& step) {
  OtherIde& other = step.stage.other_ide;
  const bool plain = step.argCount() == 1;
  if (plain && step.arg(0) != "plain") {
    return step.fail("another IDE is plain or has the add-on");
  }
  if (step.attempt == 0 && !other.start(!plain)) {
    return step.fail("another IDE cannot be started");
  }
  return other.inFront() || other.ended() ? StepResult::kDone
                                          : step.again("the other IDE does not come forward");
}

StepResult stepDeactivate(StepTry& step) {
  HWND& elsewhere = step.stage.elsewhere;
  if (elsewhere == nullptr) {
    elsewhere = CreateWindowExA(0, "Static", "Elsewhere", WS_POPUP | WS_CAPTION, 0,
                                GetSystemMetrics(SM_CYSCREEN) - 80, 160, 60, nullptr, nullptr,
                                GetModuleHandleA(nullptr), nullptr);
  }
  ShowWindow(elsewhere, SW_SHOW);
  SetForegroundWindow(elsewhere);
  bool active = GetActiveWindow() == elsewhere;
  return active ? StepResult::kDone : step.again("the frame stays active");
}

// The system commands of a window inside the frame, found by its title.
StepResult stepDocument(StepTry& step) {
  const struct {
    const char* word;
    WPARAM command;
  } commands[] = {{"minimize", SC_MINIMIZE}, {"maximize", SC_MAXIMIZE}, {"restore", SC_RESTORE}};
  HWND client = step.stage.window.mdiClient();
  HWND window = GetWindow(client, GW_CHILD);
  while (window != nullptr && !wildcardMatch(step.arg(0), windowText(window))) {
    window = GetWindow(window, GW_HWNDNEXT);
  }
  if (window == nullptr) {
    return step.again("no window of the frame is called " + step.arg(0), 2000);
  }
  if (step.arg(1) == "activate") {
    SendMessageA(client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(window), 0);
    return StepResult::kDone;
  }
  for (const auto& each : commands) {
    if (step.arg(1) == each.word) {
      SendMessageA(window, WM_SYSCOMMAND, each.command, 0);
      return StepResult::kDone;
    }
  }
  return step.fail("a window is made to activate, minimize, maximize or restore");
}

}  // namespace workbench
