// The project and what is done to it.
#include <utility>

#include "workbench/app/application.h"
#include "workbench/editor/leftover_question.h"
#include "workbench/project/project_file.h"
#include "workbench/windows/names.h"
#include "workbench/windows/path_text.h"

namespace workbench {

bool Application::openPath(const std::string& path) {
  const std::string full = resolve(path);
  const DWORD attributes = GetFileAttributesA(full.c_str());
  const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
  if (exists && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    return openFolder(full);
  }
  if (foldCase(extensionOf(full)) == ".ide") {
    // Not there means that it was never saved: it stands for its folder.
    return exists ? openProjectFile(full) : openWalked(std::string(folderOf(full)), full);
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
  std::vector<FolderEntry> entries;
  lister_.list(path, &entries);
  std::vector<std::string> projects;
  for (const FolderEntry& entry : entries) {
    if (!entry.folder && foldCase(extensionOf(entry.name)) == ".ide") {
      projects.push_back(joinPath(path, entry.name));
    }
  }
  return projects.size() == 1 ? openProjectFile(projects.front()) : openWalked(path, {});
}

bool Application::readProject(const std::string& file, ProjectTree* tree, FileStamp* stamp,
                              std::string* leftover) {
  std::string bytes;
  *stamp = store_.stamp(file);
  leftover->clear();
  const FileFault fault = store_.read(file, kLargestProjectFile, &bytes);
  const std::string read = bytes;
  if (fault == FileFault::kNone) {
    askForLeftover(
        store_, file, &read,
        [this](const std::string& text, UINT buttons) { return ask(text, buttons); }, &bytes,
        leftover);
    if (closed_) {
      return false;
    }
  }
  if (fault != FileFault::kNone) {
    showError(describeFault(fault, file));
    return false;
  }
  *tree = ProjectTree();
  tree->last_id = project_.lastId();
  ProjectFault wrong;
  if (!readProjectFile(bytes, std::string(folderOf(file)), tree, &wrong)) {
    showError(file + ", line " + std::to_string(wrong.line) + ":\n" + wrong.reason +
              "\n\nThe project was not opened, and its file is unchanged.");
    return false;
  }
  return true;
}

bool Application::openProjectFile(const std::string& file) {
  ProjectTree tree;
  FileStamp stamp;
  std::string leftover;
  const bool reopened = samePath(project_.file(), file);
  if (!readProject(file, &tree, &stamp, &leftover) || !closeProject()) {
    return false;
  }
  // Closing may just have saved it.
  if (reopened && !readProject(file, &tree, &stamp, &leftover)) {
    return false;
  }
  project_.load(file, std::move(tree));
  project_leftover_ = leftover;
  if (!leftover.empty()) {
    project_.markUnsaved();
  }
  projectOpened(stamp);
  return true;
}

bool Application::walk(const std::string& folder, FolderContent* content) {
  HCURSOR old_cursor = SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_WAIT)));
  const bool readable = walkFolder(lister_, folder, WalkLimits(), content);
  SetCursor(old_cursor);
  if (!readable) {
    showError("The folder " + folder + " cannot be read.");
  }
  return readable;
}

bool Application::openWalked(const std::string& folder, const std::string& file) {
  FolderContent content;
  const std::string before = project_.file();
  if (!walk(folder, &content) || !closeProject()) {
    return false;
  }
  const std::string name = file.empty() ? Project::fileFor(folder) : file;
  if (samePath(before, name) && store_.stamp(name).exists) {
    // Closing has just saved it.
    return openProjectFile(name);
  }
  project_.load(content, file);
  project_leftover_.clear();
  projectOpened(FileStamp());
  return true;
}

bool Application::newProject(const std::string& folder) {
  FolderContent content;
  if (!walk(resolve(folder), &content)) {
    return false;
  }
  const std::string file = Project::fileFor(content.path);
  const FileStamp stamp = store_.stamp(file);
  if (stamp.exists && ask(file + " exists already.\n\nReplace it by a new project?",
                          MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) != IDYES) {
    return false;
  }
  if (!closeProject()) {
    return false;
  }
  project_.load(content, file);
  project_leftover_.clear();
  projectOpened(stamp);
  return saveProject();
}

// stamp: the file as it was read, or as the user agreed to replace it.
void Application::projectOpened(const FileStamp& stamp) {
  project_stamp_ = stamp;
  if (stamp.exists) {
    noteRecent(project_.file());
  }
  showTitle();
  project_window_.projectChanged();
  events_.emit(Event("project").text("action", "opened").text("file", project_.file()));
  root_.project().announceOpened();
}

bool Application::saveProject() {
  if (!project_.loaded()) {
    return false;
  }
  root_.projectSave().clients().each([](IProjectSaveClient* client) { client->ProjectSaving(); });
  const std::string file = project_.file();
  const FileStamp now = store_.stamp(file);
  if (now.exists && !now.sameContent(project_stamp_) &&
      ask(file + " was written by another program.\n\nOverwrite it?",
          MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) != IDYES) {
    return false;
  }
  // While it was asked the project may have closed, or given way to another.
  if (project_.file() != file) {
    return false;
  }
  const FileFault fault =
      saveFile(store_, file, writeProjectFile(project_.tree(), project_.folder()));
  if (fault != FileFault::kNone) {
    showError("The project was not saved. " + describeFault(fault, file));
    return false;
  }
  project_stamp_ = store_.stamp(file);
  project_.markSaved();
  if (!project_leftover_.empty()) {
    store_.remove(std::exchange(project_leftover_, {}));
  }
  noteRecent(file);
  events_.emit(Event("project").text("action", "saved").text("file", file));
  return true;
}

bool Application::askToSaveProject() {
  if (!project_.modified()) {
    return true;
  }
  const int answer =
      ask("Save changes to the project " + project_.file() + "?", MB_YESNOCANCEL | MB_ICONQUESTION);
  return answer == IDNO || (answer == IDYES && saveProject());
}

bool Application::closeProject() {
  if (!mayStopMake() || !editors_.askToSaveAll() || !askToSaveProject()) {
    return false;
  }
  editors_.destroyAll();
  unloadProject();
  return true;
}

void Application::unloadProject() {
  if (!project_.loaded()) {
    return;
  }
  const std::string file = project_.file();
  make_.close();
  root_.project().announceClosed();
  project_.close();
  project_window_.projectChanged();
  showTitle();
  events_.emit(Event("project").text("action", "closed").text("file", file));
}

std::string Application::projectName() {
  const std::string_view name = fileName(project_.file());
  return std::string(name.substr(0, name.size() - extensionOf(name).size()));
}

void Application::showTitle() {
  std::string title = kFrameTitle;
  if (project_.loaded()) {
    title += " - ";
    title += projectName();
  }
  if (frame_.window() != nullptr) {
    frame_.setTitle(title);
  }
}

void Application::openForPerson(const std::string& path) {
  if (openPath(path) && editors_.active() == nullptr) {
    showFirstSource();
  }
}

void Application::takePath(const std::string& path) {
  const std::string full = path.empty() ? path : resolve(path);
  // What is open already stays as it is.
  if (!full.empty() && !samePath(full, project_.file()) && !samePath(full, project_.folder())) {
    openForPerson(full);
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

unsigned int Application::findNode(const std::string& name) {
  const unsigned int node = project_.find(name);
  return node != 0 ? node : project_.find(resolve(name));
}

unsigned int Application::addNode(unsigned int parent, const std::string& name,
                                  const std::string& type) {
  return root_.project().add(parent, name, type);
}

bool Application::renameNode(unsigned int node, const std::string& name) {
  const NodeInfo* info = project_.node(node);
  return info != nullptr &&
         root_.project().rename(node, project_.fullName(info->parent, name, info->type));
}

bool Application::removeNode(unsigned int node) {
  return root_.project().RemoveNode(node) != 0;
}

bool Application::describeNode(unsigned int node, const std::string& description) {
  return root_.project().describe(node, description);
}

bool Application::setNodePath(unsigned int node, int kind, const std::string& folders) {
  return root_.project().setNodeOption(node, kind, folders);
}

std::vector<ProjectEntry> Application::projectEntries() {
  std::vector<ProjectEntry> result;
  for (const NodeInfo* node : project_.nodes()) {
    result.push_back({project_.depth(node->id), node->name, node->type, node->description});
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
  if (!project_.commitOption(project_.prepareOption(name, bytes))) {
    return false;
  }
  // Add-ons read their options as a project opens, and write what they hold as it is saved.
  root_.project().announceOpened();
  return true;
}

}  // namespace workbench
