// The project and what is done to it.
#include "workbench/app/application.h"
#include "workbench/app/names.h"
#include "workbench/project/path_text.h"

namespace workbench {

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

unsigned int Application::findNode(const std::string& name) {
  const unsigned int node = project_.find(name);
  return node != 0 ? node : project_.find(resolve(name));
}

unsigned int Application::addNode(unsigned int parent, const std::string& name,
                                  const std::string& type) {
  return root_.project().add(parent, project_.fullName(name, type), type);
}

bool Application::renameNode(unsigned int node, const std::string& name) {
  const NodeInfo* info = project_.node(node);
  return info != nullptr && root_.project().rename(node, project_.fullName(name, info->type));
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
  return project_.commitOption(project_.prepareOption(name, bytes));
}

void Application::make(int result) {
  ClientList<IMakeClient>& clients = root_.make().clients();
  clients.each([](IMakeClient* client) { client->MakeStarted(); });
  clients.each([result](IMakeClient* client) { client->MakeEnded(result); });
}

}  // namespace workbench
