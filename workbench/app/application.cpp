#include "workbench/app/application.h"

#include "workbench/app/command_ids.h"
#include "workbench/app/names.h"
#include "workbench/app/settings_store.h"
#include "workbench/project/path_text.h"

namespace workbench {

Application::Application()
    : editors_(store_, settings_), root_({*this, editors_, project_, live_}), frame_(*this) {}

Application::~Application() = default;

bool Application::startAddon(const std::string& path, std::string* reason) {
  return addon_.start(path, &root_, reason);
}

bool Application::createFrame(HINSTANCE instance, bool keep_settings) {
  instance_ = instance;
  keep_settings_ = keep_settings;
  if (keep_settings_) {
    loadSettings(&settings_);
  }
  if (!TextWindow::registerClass(instance) || !EditorChild::registerClass(instance) ||
      !frame_.create(instance)) {
    return false;
  }
  editors_.attach(frame_.window(), frame_.mdiClient(), instance);
  editors_.setChangeListener([this] { showEditorState(); });
  root_.tools().setMenuListener([this] { showTools(); });
  showTools();
  return true;
}

void Application::showTools() {
  if (frame_.window() == nullptr) {
    return;
  }
  std::vector<ToolItem> items;
  for (const ToolService::MenuTool& tool : root_.tools().menuTools()) {
    items.push_back({CM_FIRST_TOOL + static_cast<int>(tool.handle), tool.text});
  }
  frame_.setTools(items);
}

int Application::run() {
  const int code = frame_.run();
  // A script may end the loop with the frame still there.
  if (frame_.window() != nullptr) {
    frameClosing();
    DestroyWindow(frame_.window());
  }
  return code;
}

void Application::frameClosing() {
  if (closed_) {
    return;
  }
  closed_ = true;
  editors_.destroyAll();
  unloadProject();
  addon_.shutDown();
  root_.tools().setMenuListener({});
  root_.reportLeaks();
}

void Application::showError(const std::string& text) {
  MessageBoxA(frame_.window(), text.c_str(), kProgramCaption, MB_OK | MB_ICONERROR);
}

bool Application::openPath(const std::string& path) {
  const std::string full = resolve(path);
  const DWORD attributes = GetFileAttributesA(full.c_str());
  const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
  if (exists && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    return openFolder(full);
  }
  // A project's file stands for its folder and need not be there.
  if (foldCase(extensionOf(full)) == ".ide") {
    return openFolder(std::string(folderOf(full)));
  }
  if (!exists) {
    showError(describeFault(FileFault::kMissing, full));
    return false;
  }
  return (hasProject() || openFolder(std::string(folderOf(full)))) && editFile(full, 0) != nullptr;
}

bool Application::openFolder(const std::string& folder) {
  std::string path = folder;
  if (path.size() > 3 && (path.back() == '\\' || path.back() == '/')) {
    path.pop_back();
  }
  HCURSOR old_cursor = SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_WAIT)));
  FolderContent content;
  const bool readable = walkFolder(lister_, path, WalkLimits(), &content);
  SetCursor(old_cursor);
  if (!readable) {
    showError("The folder " + path + " cannot be read.");
    return false;
  }
  if (!closeProject()) {
    return false;
  }
  project_.load(content);
  showTitle();
  events_.emit(Event("project").text("action", "opened").text("file", project_.file()));
  root_.project().announceOpened();
  return true;
}

bool Application::closeProject() {
  if (!editors_.closeAll()) {
    return false;
  }
  unloadProject();
  return true;
}

void Application::unloadProject() {
  if (!project_.loaded()) {
    return;
  }
  const std::string file = project_.file();
  root_.projectSave().clients().each([](IProjectSaveClient* client) { client->ProjectSaving(); });
  root_.project().announceClosed();
  project_.close();
  showTitle();
  events_.emit(Event("project").text("action", "closed").text("file", file));
}

void Application::showTitle() {
  std::string title = kFrameTitle;
  if (project_.loaded()) {
    title += " - ";
    title += fileName(project_.folder());
  }
  if (frame_.window() != nullptr) {
    frame_.setTitle(title);
  }
}

void Application::showFirstSource() {
  for (const NodeInfo* node : project_.nodes()) {
    const std::string type = foldCase(node->type);
    if (type == ".cpp" || type == ".cc" || type == ".cxx" || type == ".c" || type == ".h" ||
        type == ".hpp") {
      editFile(node->name, 0);
      return;
    }
  }
}

std::vector<ProjectEntry> Application::projectEntries() {
  std::vector<ProjectEntry> result;
  for (const NodeInfo* node : project_.nodes()) {
    result.push_back({project_.depth(node->id), node->name, node->type});
  }
  return result;
}

bool Application::readOption(const std::string& name, std::string* bytes) {
  const std::string* found = project_.option(name);
  if (found != nullptr) {
    *bytes = *found;
  }
  return found != nullptr;
}

bool Application::writeOption(const std::string& name, const std::string& bytes) {
  return project_.commitOption(project_.prepareOption(name, bytes));
}

void Application::make(int result) {
  ClientList<IMakeClient>& clients = root_.make().clients();
  clients.each([](IMakeClient* client) { client->MakeStarted(); });
  clients.each([result](IMakeClient* client) { client->MakeEnded(result); });
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
    child->setCaret(line, 1);
  }
  return announce(child);
}

EditorWindow* Application::editOrStart(const std::string& path) {
  return announce(editors_.openOrStart(resolve(path)));
}

EditorChild* Application::announce(EditorChild* child) {
  if (child != nullptr) {
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
    frame_.statusBar().setFields("", "", "");
    return;
  }
  int line = 0;
  int column = 0;
  child->caret(&line, &column);
  std::string position = std::to_string(line);
  position += ':';
  position += std::to_string(column);
  frame_.statusBar().setFields(position, child->modified() ? "Modified" : "",
                               child->textView().insertMode() ? "Insert" : "Overwrite");
}

}  // namespace workbench
