#include "addon/behaviours/general_behaviours.h"

#include <string>

#include "addon/ide/current_project.h"
#include "addon/ide/environment.h"
#include "addon/ide/find_window.h"
#include "addon/ide/service_holder.h"
#include "addon/ide/status_line.h"

namespace kesto {

GeneralBehaviours* generalBehaviours = nullptr;

namespace {

constexpr char kDialogClass[] = "#32770";
constexpr int kSecondsPerMinute = 60;
// A point on the first tab of the message window.
constexpr int kFirstTabX = 20;
constexpr int kFirstTabY = 11;

void leaveToRunningIde() {
  // Whichever process it is of: this one has no frame yet.
  const HWND running = FindWindowA(ideapi::kFrameClass, nullptr);
  if (running == nullptr) {
    return;
  }
  if (IsIconic(running)) {
    ShowWindow(running, SW_RESTORE);
  }
  SetActiveWindow(running);
  // Activation alone stays within the calling thread.
  SetForegroundWindow(running);
  ExitProcess(0);
}

HWND childOf(HWND parent, const char* window_class) {
  // Without a parent the enumeration would walk the desktop.
  return parent != nullptr ? findChildWindow(parent, window_class, nullptr) : nullptr;
}

HWND documentWindow(const char* window_class) {
  return childOf(findMdiClient(), window_class);
}

// Closes the window; its place comes from before, when it was there already.
DocumentPlace closeDocument(const char* window_class, const DocumentPlace& before) {
  const HWND window = documentWindow(window_class);
  const DocumentPlace place =
      window != nullptr && window == before.window ? before : placeOfDocument(window);
  if (window != nullptr) {
    SendMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  }
  return place;
}

void sendCommand(HWND window, int command) {
  if (window != nullptr) {
    SendMessageA(window, WM_COMMAND, static_cast<WPARAM>(command), 0);
  }
}

bool isOwnWindow(HWND window) {
  return addonEnvironment != nullptr && reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(
                                            window, GWLP_HINSTANCE)) == addonEnvironment->instance;
}

BOOL CALLBACK takeDialog(HWND window, LPARAM parameter) {
  if (!isWindowOfClass(window, kDialogClass) || isOwnWindow(window)) {
    return TRUE;
  }
  *reinterpret_cast<HWND*>(parameter) = window;
  return FALSE;
}

// The IDE's own dialogs only: neither other programs' nor those of the add-on.
HWND topLevelDialog() {
  HWND dialog = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), takeDialog, reinterpret_cast<LPARAM>(&dialog));
  return dialog;
}

HWND findStatusBox() {
  HWND box = documentWindow(kDialogClass);
  if (box == nullptr) {
    box = topLevelDialog();
  }
  if (box == nullptr) {
    box = GetActiveWindow();
  }
  return box != nullptr && isWindowOfClass(box, kDialogClass) && !isOwnWindow(box) ? box : nullptr;
}

}  // namespace

GeneralBehaviours::GeneralBehaviours() {
  settings.section.read();
  if (settings.unique.value != 0) {
    leaveToRunningIde();
  }
}

void GeneralBehaviours::makeStarted() {
  active_before_ = activeDocument();
  // Clearing shows the window, whatever its size was.
  shown_ = placeOfDocument(documentWindow(ideapi::kMessageClass));
  if (settings.clear_on_make.value != 0) {
    clearMessages();
  }
  if (settings.close_on_make.value != 0) {
    messages_ = closeDocument(ideapi::kMessageClass, shown_);
  }
  if (settings.close_project_on_make.value != 0) {
    project_ = closeDocument(ideapi::kProjectClass, {});
  }
  if (settings.iconize_status_on_make.value != 0) {
    minimiseStatusBox();
  }
  active_after_ = activeDocument();
  // Windows that came and went may have left it smaller.
  if (active_after_.window == active_before_.window) {
    activateDocument(active_before_);
  }
}

void GeneralBehaviours::clearMessages() const {
  sendCommand(findFrame(), ideapi::kCommandShowMessages);
  const HWND pane = childOf(documentWindow(ideapi::kMessageClass), ideapi::kOwlWindowClass);
  if (const HWND tabs = childOf(pane, ideapi::kNoteTabClass)) {
    SendMessageA(tabs, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kFirstTabX, kFirstTabY));
  }
  sendCommand(childOf(pane, ideapi::kMessageViewerClass), ideapi::kCommandClearMessages);
}

void GeneralBehaviours::minimiseStatusBox() {
  status_box_ = findStatusBox();
  if (status_box_ != nullptr) {
    SendMessageA(status_box_, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  }
}

void GeneralBehaviours::makeEnded() {
  const HWND frame = findFrame();
  const bool working = frame != nullptr && GetActiveWindow() == frame;
  reopenWindows();
  if (settings.iconize_status_on_make.value != 0 && status_box_ != nullptr) {
    SendMessageA(status_box_, WM_SYSCOMMAND, SC_RESTORE, 0);
    // The box shows how the make went; whoever is at work goes on where the caret is.
    if (working) {
      SetActiveWindow(frame);
    }
  }
  status_box_ = nullptr;
}

// The window that was active stays so: the one before the make, unless the user has gone
// to another since.
void GeneralBehaviours::reopenWindows() {
  const struct {
    bool closed;
    int command;
    const char* window_class;
    const DocumentPlace& place;
  } windows[] = {{settings.close_project_on_make.value != 0 && project_.window != nullptr,
                  ideapi::kCommandShowProject, ideapi::kProjectClass, project_},
                 {settings.close_on_make.value != 0 && messages_.window != nullptr,
                  ideapi::kCommandShowMessages, ideapi::kMessageClass, messages_}};
  const ActiveDocument now = activeDocument();
  const ActiveDocument before = now.window == active_after_.window ? active_before_ : now;
  ActiveDocument wanted = before;
  for (const auto& each : windows) {
    if (!each.closed) {
      continue;
    }
    sendCommand(findFrame(), each.command);
    if (const HWND window = documentWindow(each.window_class)) {
      if (each.place.window == before.window) {
        wanted = {window, false};  // its place tells its size
      }
      activateDocument(wanted);
      putDocument(window, each.place);
    }
  }
  activateDocument(wanted);
  const HWND messages = documentWindow(ideapi::kMessageClass);
  if (settings.clear_on_make.value != 0 && settings.close_on_make.value == 0 &&
      shown_.minimised() && messages == shown_.window) {
    putDocument(messages, shown_);
  }
}

void GeneralBehaviours::viewOnOpen() const {
  const HWND frame = settings.view_on_open.value != 0 ? findFrame() : nullptr;
  if (frame != nullptr && IsWindowEnabled(frame)) {
    PostMessageA(frame, WM_COMMAND, ideapi::kCommandShowProject, 0);
  }
}

void GeneralBehaviours::timerTick() {
  if (settings.timer_save.value == 0) {
    return;
  }
  ++ticks_;
  if (ticks_ / kSecondsPerMinute >= settings.timer_count.value) {
    ticks_ = 0;
    autoSave();
  }
}

void GeneralBehaviours::autoSave() {
  const HWND frame = findFrame();
  if (!isProjectOpen() || frame == nullptr || !IsWindowEnabled(frame)) {
    return;
  }
  const ComPtr<IEditorService> editors = editorService();
  if (!editors) {
    return;
  }
  IIdeString* saved = nullptr;
  const int count = editors->SaveModified(&saved);
  const std::unique_ptr<char[]> names = takeIdeString(saved);
  // Saving may ask, and the IDE may have closed by the answer.
  if (count <= 0 || generalBehaviours != this) {
    return;
  }
  const std::string text = "Auto-save (" + std::to_string(settings.timer_count.value) +
                           " min) : " + (names != nullptr ? names.get() : "") + ".";
  showStatus(text.c_str());
}

}  // namespace kesto
