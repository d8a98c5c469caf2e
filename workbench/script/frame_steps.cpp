#include "ideapi/ide_interfaces.h"
#include "workbench/app/workbench.h"
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
  Workbench& workbench = step.stage.workbench;
  std::string path = workbench.resolve(step.arg(0));
  return workbench.openPath(path) ? StepResult::kDone : step.fail("could not open " + path);
}

StepResult stepClose(StepTry& step) {
  bool closed = step.stage.workbench.closeProject();
  return closed ? StepResult::kDone : step.fail("the project was not closed");
}

StepResult stepEdit(StepTry& step) {
  Workbench& workbench = step.stage.workbench;
  long line = 0;
  if (step.argCount() == 2 && !step.number(1, 1, kMostLines, &line)) {
    return StepResult::kFailed;
  }
  std::string path = workbench.resolve(step.arg(0));
  bool shown = workbench.editFile(path, static_cast<int>(line)) != nullptr;
  return shown ? StepResult::kDone : step.fail("could not edit " + path);
}

StepResult stepMake(StepTry& step) {
  Workbench& workbench = step.stage.workbench;
  if (step.argCount() == 0) {
    return workbench.startMake() ? StepResult::kDone : step.fail("the make did not start");
  }
  const bool failed = step.arg(0) == "fail";
  if (!failed && step.arg(0) != "ok") {
    return step.fail("a make ends with ok or fail");
  }
  workbench.make(failed ? kMakeFailed : kMakeSucceeded);
  return StepResult::kDone;
}

StepResult stepSave(StepTry& step) {
  Workbench& workbench = step.stage.workbench;
  EditorWindow* editor = step.argCount() == 1 ? workbench.findEditor(workbench.resolve(step.arg(0)))
                                              : workbench.activeEditor();
  if (editor == nullptr) {
    return noEditor(step);
  }
  return editor->save() ? StepResult::kDone : step.fail("could not save " + editor->file());
}

StepResult stepType(StepTry& step) {
  if (HWND control = focusedControl(step)) {
    for (char c : step.arg(0)) {
      PostMessageA(control, WM_CHAR, static_cast<BYTE>(c), 1);
    }
    return StepResult::kDone;
  }
  EditorWindow* editor = step.stage.workbench.activeEditor();
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
  EditorWindow* editor = step.stage.workbench.activeEditor();
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
  EditorWindow* editor = step.stage.workbench.activeEditor();
  if (editor == nullptr) {
    return noEditor(step);
  }
  editor->select(static_cast<int>(at[0]), static_cast<int>(at[1]), static_cast<int>(at[2]),
                 static_cast<int>(at[3]));
  return StepResult::kDone;
}

StepResult stepMaximize(StepTry& step) {
  Workbench& workbench = step.stage.workbench;
  EditorWindow* editor = workbench.findEditor(workbench.resolve(step.arg(0)));
  if (editor == nullptr) {
    return noEditor(step);
  }
  SendMessageA(workbench.mdiClient(), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(editor->window()),
               0);
  return StepResult::kDone;
}

StepResult stepMinimize(StepTry& step) {
  HWND frame = step.stage.workbench.frame();
  if (step.attempt == 0) {
    ShowWindow(frame, SW_MINIMIZE);
  }
  return IsIconic(frame) ? StepResult::kDone : step.again("the frame is not minimized");
}

StepResult stepRestore(StepTry& step) {
  HWND frame = step.stage.workbench.frame();
  if (step.attempt == 0) {
    ShowWindow(frame, SW_RESTORE);
  }
  return IsIconic(frame) ? step.again("the frame is not restored") : StepResult::kDone;
}

StepResult stepActivate(StepTry& step) {
  HWND frame = step.stage.workbench.frame();
  SetForegroundWindow(frame);
  if (step.stage.elsewhere != nullptr) {
    ShowWindow(step.stage.elsewhere, SW_HIDE);
  }
  bool active = GetActiveWindow() == frame || GetLastActivePopup(frame) == GetActiveWindow();
  return active ? StepResult::kDone : step.again("the frame does not become active");
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

}  // namespace workbench
