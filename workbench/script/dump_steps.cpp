#include "ideapi/ide_identifiers.h"
#include "workbench/editing.h"
#include "workbench/editor/editor_window.h"
#include "workbench/events/event_log.h"
#include "workbench/main_window.h"
#include "workbench/script/menu_reader.h"
#include "workbench/script/steps.h"
#include "workbench/script/window_text.h"

namespace workbench {
namespace {

void addPlace(Event& event, HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  event.number("x", place.left)
      .number("y", place.top)
      .number("width", place.right - place.left)
      .number("height", place.bottom - place.top);
}

StepResult dumpMenuOf(StepTry& step, HMENU menu, const char* what) {
  if (menu == nullptr) {
    return step.again(std::string("there is no ") + what, 2000);
  }
  step.stage.log.emit(menuEvent(menu));
  return StepResult::kDone;
}

StepResult dumpMenu(StepTry& step) {
  const MenuLoop* loop = step.stage.observer.menu();
  HMENU menu = loop != nullptr ? loop->root : GetMenu(step.stage.window.frame());
  return dumpMenuOf(step, menu, "menu");
}

StepResult dumpBar(StepTry& step) {
  HWND bar = step.stage.window.addonBar();
  return dumpMenuOf(step, bar != nullptr ? GetMenu(bar) : nullptr, "menu in the add-on's bar");
}

// The windows inside the frame, from the topmost down; the titles of icons are windows too.
StepResult dumpDocuments(StepTry& step, const char* name, const char* only_class) {
  HWND client = step.stage.window.mdiClient();
  HWND active = reinterpret_cast<HWND>(SendMessageA(client, WM_MDIGETACTIVE, 0, 0));
  std::vector<Event> items;
  for (HWND window = GetWindow(client, GW_CHILD); window != nullptr;
       window = GetWindow(window, GW_HWNDNEXT)) {
    if (GetWindow(window, GW_OWNER) != nullptr ||
        (only_class != nullptr && windowClass(window) != only_class)) {
      continue;
    }
    Event item("");
    item.text("class", windowClass(window))
        .text("title", windowText(window))
        .flag("active", window == active)
        .flag("iconic", IsIconic(window) != 0)
        .flag("maximized", IsZoomed(window) != 0)
        .flag("focus", IsChild(window, GetFocus()) != 0);
    addPlace(item, window);
    items.push_back(item);
  }
  step.stage.log.emit(Event(name).list("items", items));
  return StepResult::kDone;
}

StepResult dumpEditors(StepTry& step) {
  return dumpDocuments(step, "editors", ideapi::kEditorClass);
}

StepResult dumpAllDocuments(StepTry& step) {
  return dumpDocuments(step, "documents", nullptr);
}

BOOL CALLBACK addWindow(HWND window, LPARAM data) {
  Event item("");
  item.text("class", windowClass(window))
      .text("title", windowText(window))
      .flag("visible", IsWindowVisible(window) != 0)
      .flag("enabled", IsWindowEnabled(window) != 0)
      .flag("iconic", IsIconic(window) != 0)
      .flag("topmost", (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0)
      .flag("active", GetActiveWindow() == window);
  addPlace(item, window);
  reinterpret_cast<std::vector<Event>*>(data)->push_back(item);
  return TRUE;
}

StepResult dumpWindows(StepTry& step) {
  std::vector<Event> items;
  EnumThreadWindows(GetCurrentThreadId(), addWindow, reinterpret_cast<LPARAM>(&items));
  step.stage.log.emit(Event("windows").list("items", items));
  return StepResult::kDone;
}

StepResult dumpText(StepTry& step) {
  EditorWindow* editor = step.stage.editing.activeEditor();
  if (editor == nullptr) {
    return step.again("no editor is open", 2000);
  }
  int line = 0, column = 0;
  editor->caret(&line, &column);
  const TextView view = editor->view();
  step.stage.log.emit(Event("text")
                          .text("file", editor->file())
                          .number("line", line)
                          .number("column", column)
                          .number("top", view.top)
                          .number("rows", view.rows)
                          .number("marked", view.marked)
                          .flag("modified", editor->modified())
                          .text("selection", editor->selection())
                          .text("text", editor->text()));
  return StepResult::kDone;
}

StepResult dumpStatus(StepTry& step) {
  MainWindow& window = step.stage.window;
  step.stage.log.emit(
      Event("status-line").text("text", window.status()).text("state", window.editorState()));
  return StepResult::kDone;
}

}  // namespace

StepResult stepDump(StepTry& step) {
  const struct {
    const char* name;
    Step dump;
  } kinds[] = {
      {"menu", dumpMenu},           {"bar", dumpBar},           {"editors", dumpEditors},
      {"windows", dumpWindows},     {"dialog", dumpDialog},     {"text", dumpText},
      {"project", dumpProject},     {"messages", dumpMessages}, {"documents", dumpAllDocuments},
      {"clipboard", dumpClipboard}, {"status", dumpStatus}};
  if (step.argCount() == 2) {
    return step.fail("usage: dump KIND [KEY VALUE]");
  }
  for (const auto& kind : kinds) {
    if (step.arg(0) == kind.name) {
      const StepResult result = kind.dump(step);
      if (result != StepResult::kDone || step.argCount() == 1) {
        return result;
      }
      const EventHistory& history = step.stage.history;
      return expectLatest(step, {history.at(history.end() - 1).name(), step.arg(1), step.arg(2)});
    }
  }
  return step.fail("nothing to dump is called " + step.arg(0));
}

}  // namespace workbench
