#include "workbench/app/application.h"

#include "workbench/app/names.h"
#include "workbench/project/path_text.h"

namespace workbench {

Application::Application() : editors_(store_, settings_), frame_(*this) {}

Application::~Application() = default;

bool Application::createFrame(HINSTANCE instance) {
  instance_ = instance;
  if (!TextWindow::registerClass(instance) || !EditorChild::registerClass(instance) ||
      !frame_.create(instance)) {
    return false;
  }
  editors_.attach(frame_.window(), frame_.mdiClient(), instance);
  editors_.setChangeListener([this] { showEditorState(); });
  return true;
}

bool Application::openPath(const std::string& path) {
  return editFile(path, 0) != nullptr;
}

bool Application::closeProject() {
  return editors_.closeAll();
}

std::string Application::projectDirectory() {
  if (!project_folder_.empty()) {
    return project_folder_;
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
    child->setCaret(line, 1);
  }
  int at = 0;
  int column = 0;
  child->caret(&at, &column);
  events_.emit(Event("editor").text("file", child->file()).number("line", at));
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
    frame_.statusBar().setFields("", "", "");
    return;
  }
  int line = 0;
  int column = 0;
  child->caret(&line, &column);
  frame_.statusBar().setFields(std::to_string(line) + ":" + std::to_string(column),
                               child->modified() ? "Modified" : "",
                               child->textView().insertMode() ? "Insert" : "Overwrite");
}

bool Application::mayCloseFrame() {
  return editors_.askToSaveAll();
}

void Application::frameClosing() {}

}  // namespace workbench
