#include "workbench/app/application.h"

#include <algorithm>
#include <cstring>

#include "workbench/app/settings_store.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/message_box.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

BOOL CALLBACK takeBar(HWND window, LPARAM data) {
  char name[8] = "";
  GetClassNameA(window, name, sizeof name);
  if (std::strcmp(name, "KADO") != 0) {
    return TRUE;
  }
  *reinterpret_cast<HWND*>(data) = window;
  return FALSE;
}

}  // namespace

Application::Application()
    : editors_(store_, settings_),
      root_({events_, *this, *this, *this, *this, editors_, project_, messages_, live_}),
      frame_(*this),
      message_window_(messages_, [this](const Message& message) { showPlace(message); }),
      project_window_(project_, *this),
      make_(messages_, *this) {
  root_.project().setView(&project_window_);
  messages_.setListener([this](const MessageGroupInfo& group, const Message* added) {
    messagesChanged(group, added);
  });
}

Application::~Application() = default;

bool Application::startAddon(const std::string& path, std::string* reason) {
  return addon_.start(path, &root_, reason);
}

bool Application::createFrame(HINSTANCE instance, bool keep_settings) {
  instance_ = instance;
  keep_settings_ = keep_settings;
  if (keep_settings_) {
    loadSettings(&settings_);
    const std::vector<std::string> recent = loadRecent();
    std::for_each(recent.rbegin(), recent.rend(),
                  [this](const std::string& path) { recent_.add(path); });
  }
  if (!TextWindow::registerClass(instance) || !EditorChild::registerClass(instance) ||
      !MessageWindow::registerClasses(instance) || !frame_.create(instance) ||
      !message_window_.attach(frame_.mdiClient(), instance) ||
      !project_window_.attach(frame_.mdiClient(), instance)) {
    return false;
  }
  editors_.attach(frame_.window(), frame_.mdiClient(), instance);
  editors_.setChangeListener([this] { showEditorState(); });
  editors_.setEditListener([this] { frame_.statusBar().passText(); });
  frame_.statusBar().setLeftListener(
      [this](const std::string& text) { events_.emit(Event("status-left").text("text", text)); });
  editors_.setStatusListener([this](const std::string& text) { setStatus(text); });
  root_.tools().setMenuListener([this] { showTools(); });
  showTools();
  showRecent();
  return true;
}

void Application::noteRecent(const std::string& path) {
  if (recent_.add(path)) {
    showRecent();
  }
}

void Application::openRecent(std::size_t position) {
  if (position >= recent_.all().size()) {
    return;
  }
  const std::string path = recent_.all()[position];
  const bool project = foldCase(extensionOf(path)) == ".ide";
  if (!store_.stamp(path).exists) {
    showError(describeFault(FileFault::kMissing, path));
    recent_.remove(path);
    showRecent();
  } else if (project) {
    openPath(path);
  } else {
    editFile(path, 0);
  }
}

void Application::showRecent() {
  if (frame_.window() == nullptr) {
    return;
  }
  std::vector<std::string> texts;
  for (const std::string& path : recent_.all()) {
    texts.push_back(menuTextOfPath(texts.size() + 1, path));
  }
  frame_.setRecent(texts);
  if (keep_settings_) {
    saveRecent(recent_.all());
  }
}

HWND Application::addonBar() {
  HWND bar = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), takeBar, reinterpret_cast<LPARAM>(&bar));
  return bar;
}

int Application::run() {
  const int code = frame_.run();
  // A script may end the loop with the frame still there.
  if (frame_.window() != nullptr) {
    frameClosing();
    DestroyWindow(frame_.window());
  }
  // Calls of the add-on that were under way as it was shut down have returned by now.
  root_.reportLeaks();
  return code;
}

void Application::frameClosing() {
  if (closed_) {
    return;
  }
  closed_ = true;
  // A menu that is still open keeps its items.
  root_.tools().setMenuListener({});
  make_.close();
  editors_.destroyAll();
  unloadProject();
  root_.project().setView(nullptr);
  addon_.shutDown();
}

void Application::showError(const std::string& text) {
  ask(text, MB_OK | MB_ICONERROR);
}

int Application::ask(const std::string& text, UINT buttons) {
  return showBox(frame_.window(), text, buttons);
}

std::string Application::projectDirectory() {
  if (project_.loaded()) {
    return project_.folder();
  }
  char folder[MAX_PATH] = {};
  GetCurrentDirectoryA(sizeof folder, folder);
  return folder;
}

std::string Application::resolve(const std::string& path) {
  const std::string full = isAbsolutePath(path) ? path : joinPath(projectDirectory(), path);
  char result[1024] = {};
  const DWORD size = GetFullPathNameA(full.c_str(), sizeof result, result, nullptr);
  return size > 0 && size < sizeof result ? std::string(result, size) : full;
}

EditorWindow* Application::editFile(const std::string& path, int line) {
  EditorChild* child = editors_.open(resolve(path));
  if (child == nullptr) {
    return nullptr;
  }
  if (line > 0) {
    child->showHit(line, 1);
  }
  return announce(child);
}

void Application::messagesChanged(const MessageGroupInfo& group, const Message* added) {
  if (added != nullptr) {
    events_.emit(Event("message")
                     .text("group", group.name)
                     .text("text", added->text)
                     .text("file", added->file)
                     .number("line", added->line)
                     .number("column", added->column)
                     .number("kind", added->kind));
  }
  message_window_.storeChanged(group, added);
}

bool Application::openMessage(int position) {
  const std::vector<Message>* shown = message_window_.shownMessages();
  if (shown == nullptr || position < 0 || static_cast<std::size_t>(position) >= shown->size()) {
    return false;
  }
  const Message message = (*shown)[static_cast<std::size_t>(position)];
  return showPlace(message);
}

void Application::showOtherMessage(bool next) {
  bool wrapped = false;
  const Message* found = message_window_.step(next, &wrapped);
  if (found == nullptr) {
    setStatus("No message tells of a place");
    return;
  }
  // Opening may change the list.
  const Message message = *found;
  showPlace(message);
  const char* word = next ? "The first message again: " : "The last message again: ";
  setStatus((wrapped ? word : "") + message.text);
}

bool Application::showPlace(const Message& message) {
  EditorWindow* editor = message.file.empty() ? nullptr : editFile(message.file, message.line);
  if (editor != nullptr && message.line > 0 && message.column > 1) {
    editor->showHit(message.line, message.column);
  }
  return editor != nullptr;
}

EditorWindow* Application::editOrStart(const std::string& path) {
  const bool open = findEditor(path) != nullptr;
  EditorChild* child = announce(editors_.openOrStart(resolve(path)));
  if (child != nullptr && !open && !child->openFile().stamp.exists) {
    setStatus("New file: " + child->file());
  }
  return child;
}

EditorChild* Application::announce(EditorChild* child) {
  if (child != nullptr) {
    if (child->openFile().stamp.exists) {
      noteRecent(child->file());
    }
    events_.emit(Event("editor")
                     .text("file", child->file())
                     .number("line", child->textView().caret().line + 1));
  }
  return child;
}

EditorWindow* Application::findEditor(const std::string& path) {
  return editors_.find(resolve(path));
}

void Application::setStatus(const std::string& text) {
  frame_.statusBar().setText(text);
  events_.emit(Event("status").text("text", text));
}

void Application::showEditorState() {
  EditorChild* child = editors_.active();
  if (child == nullptr) {
    frame_.statusBar().setFields("", "", "", "");
    return;
  }
  int line = 0;
  int column = 0;
  child->caret(&line, &column);
  std::string position = std::to_string(line);
  position += ':';
  position += std::to_string(column);
  const OpenFile& file = child->openFile();
  const char* state = file.stamp.exists ? "" : "New file";
  frame_.statusBar().setFields(position, child->modified() ? "Modified" : state,
                               child->textView().insertMode() ? "Insert" : "Overwrite",
                               file.document.encoding() == Encoding::kUtf8 ? "UTF-8" : "ANSI");
}

}  // namespace workbench
