#include <cstdlib>

#include "workbench/editing.h"
#include "workbench/editor/editor_window.h"
#include "workbench/main_window.h"
#include "workbench/paths.h"
#include "workbench/script/input.h"
#include "workbench/script/steps.h"
#include "workbench/script/title_bar.h"
#include "workbench/script/window_text.h"

namespace workbench {
namespace {

bool isOwn(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process == GetCurrentProcessId();
}

// Input goes to the foreground: the thread must have it.
void takeForeground(const StepTry& step) {
  if (!isOwn(GetForegroundWindow())) {
    SetForegroundWindow(step.stage.window.frame());
  }
}

// The editor of a file, brought forward, or null with the step failed.
HWND editorToClick(StepTry& step, const std::string& file) {
  std::string path = step.stage.paths.resolve(file);
  EditorWindow* editor = step.stage.editing.findEditor(path);
  if (editor == nullptr) {
    step.fail("no editor shows " + path);
    return nullptr;
  }
  HWND window = editor->window();
  if (step.stage.editing.activeEditor() == nullptr ||
      step.stage.editing.activeEditor()->window() != window) {
    step.stage.editing.editFile(path, 0);
  }
  return window;
}

bool atLastClick(const Stage& stage, POINT screen) {
  LONG dx = screen.x - stage.last_click.x, dy = screen.y - stage.last_click.y;
  return std::abs(dx) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
         std::abs(dy) <= GetSystemMetrics(SM_CYDOUBLECLK);
}

// Whether a click would make a double click of the one before. The system stamps a click
// when it takes it, by a clock that may be ahead of this one.
bool wouldDouble(const Stage& stage, POINT screen) {
  constexpr DWORD kClocksApartMs = 100;
  return atLastClick(stage, screen) &&
         GetTickCount() - stage.last_click_ms <= GetDoubleClickTime() + kClocksApartMs;
}

// Where to click a title button: in its middle, or beside it when the last click was
// there, so that no time makes a double click of the two.
POINT freshPlace(const Stage& stage, POINT middle) {
  LONG aside = atLastClick(stage, middle) ? GetSystemMetrics(SM_CXDOUBLECLK) + 1 : 0;
  return {middle.x + aside, middle.y};
}

// Moves the pointer on the first try and clicks once it has come to rest.
StepResult click(StepTry& step, POINT screen, MouseButton button) {
  if (wouldDouble(step.stage, screen)) {
    return step.again("the last click was just now");
  }
  if (!pointerRests(screen)) {
    return step.again("the pointer does not get to its place");
  }
  clickMouse(screen, button);
  step.stage.last_click = screen;
  step.stage.last_click_ms = GetTickCount();
  return StepResult::kDone;
}

StepResult clickEditor(StepTry& step, HWND editor, POINT screen, MouseButton button) {
  takeForeground(step);
  HWND under = WindowFromPoint(screen);
  if (under != editor && !IsChild(editor, under)) {
    return step.again("the place to click, " + std::to_string(screen.x) + " " +
                          std::to_string(screen.y) + ", is covered by a " + windowClass(under),
                      2000);
  }
  return click(step, screen, button);
}

// The side that an argument names, the stored one without it. False with the step failed.
bool sideOf(StepTry& step, size_t index, TitleSide* side) {
  *side = storedTitleSide();
  if (step.argCount() <= index) {
    return true;
  }
  if (step.arg(index) != "left" && step.arg(index) != "right") {
    step.fail("a side is left or right");
    return false;
  }
  *side = step.arg(index) == "left" ? TitleSide::kLeft : TitleSide::kRight;
  return true;
}

}  // namespace

StepResult stepKey(StepTry& step) {
  KeyStroke stroke;
  if (!parseKey(step.arg(0), &stroke)) {
    return step.fail("no such key: " + step.arg(0));
  }
  takeForeground(step);
  pressKey(stroke);
  return StepResult::kDone;
}

StepResult stepClickTitle(StepTry& step) {
  long button = 0;
  TitleSide side = TitleSide::kLeft;
  if (!step.number(1, 0, 2, &button) || !sideOf(step, 2, &side)) {
    return StepResult::kFailed;
  }
  HWND editor = editorToClick(step, step.arg(0));
  if (editor == nullptr) {
    return StepResult::kFailed;
  }
  POINT place = titleButtonCenter(editor, static_cast<int>(button), side);
  return clickEditor(step, editor, freshPlace(step.stage, place), MouseButton::kLeft);
}

StepResult stepDoubleClickTitle(StepTry& step) {
  long button = 0;
  if (!step.number(1, 0, 2, &button)) {
    return StepResult::kFailed;
  }
  HWND editor = editorToClick(step, step.arg(0));
  if (editor == nullptr) {
    return StepResult::kFailed;
  }
  POINT middle = titleButtonCenter(editor, static_cast<int>(button), storedTitleSide());
  POINT place = freshPlace(step.stage, middle);
  StepResult result = clickEditor(step, editor, place, MouseButton::kLeft);
  if (result == StepResult::kDone) {
    clickMouse(place, MouseButton::kLeft);
    step.stage.last_click_ms = GetTickCount();
  }
  return result;
}

StepResult stepExpectButtons(StepTry& step) {
  TitleSide side = TitleSide::kLeft;
  if (!sideOf(step, 1, &side)) {
    return StepResult::kFailed;
  }
  // It is not brought forward, which would paint its caption.
  EditorWindow* editor = step.stage.editing.findEditor(step.stage.paths.resolve(step.arg(0)));
  if (editor == nullptr) {
    return step.fail("no editor shows " + step.arg(0));
  }
  HWND bar = step.stage.window.addonBar();
  auto* addon =
      bar != nullptr ? reinterpret_cast<HINSTANCE>(GetWindowLongA(bar, GWL_HINSTANCE)) : nullptr;
  return addon != nullptr && titleButtonsShow(editor->window(), addon, side)
             ? StepResult::kDone
             : step.again("the caption of " + step.arg(0) + " does not show the buttons", 5000);
}

StepResult stepRightClickTitle(StepTry& step) {
  HWND editor = editorToClick(step, step.arg(0));
  if (editor == nullptr) {
    return StepResult::kFailed;
  }
  RECT place{};
  GetWindowRect(editor, &place);
  // Between the icon and the buttons at the far end, whichever side the add-on's are on.
  POINT middle{(place.left + place.right) / 2, place.top + GetSystemMetrics(SM_CYCAPTION) / 2 + 2};
  return clickEditor(step, editor, middle, MouseButton::kRight);
}

StepResult stepClickAt(StepTry& step) {
  long x = 0, y = 0;
  if (!step.number(0, 0, 32767, &x) || !step.number(1, 0, 32767, &y)) {
    return StepResult::kFailed;
  }
  // A window of this program that is in reach comes forward by the click itself.
  if (!isOwn(WindowFromPoint({x, y}))) {
    takeForeground(step);
  }
  return click(step, {x, y}, MouseButton::kLeft);
}

StepResult stepClickCaption(StepTry& step) {
  long x = 0, y = 0;
  if (!step.number(1, -32768, 32767, &x) || !step.number(2, -32768, 32767, &y)) {
    return StepResult::kFailed;
  }
  HWND editor = editorToClick(step, step.arg(0));
  if (editor == nullptr) {
    return StepResult::kFailed;
  }
  RECT place{};
  GetWindowRect(editor, &place);
  return clickEditor(step, editor, {place.left + x, place.top + y}, MouseButton::kLeft);
}

}  // namespace workbench
