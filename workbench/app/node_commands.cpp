// What the commands about the project's nodes do; they work on the node that is
// selected in the project window.
#include "workbench/app/application.h"
#include "workbench/app/node_dialogs.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/file_dialogs.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

std::string ownOption(const NodeInfo& node, int kind) {
  const auto found = node.options.find(kind);
  return found == node.options.end() ? std::string() : found->second;
}

}  // namespace

bool Application::nodeCommand(int id) {
  if (id < CM_NODE_OPEN || id > CM_PROJECT_BUILD_COMMAND || !commandEnabled(id)) {
    return false;
  }
  switch (id) {
    case CM_NODE_OPEN:
      openNode(project_window_.selected(), false);
      return true;
    case CM_NODE_ADD_FILES:
      addFiles();
      return true;
    case CM_NODE_ADD_CONTAINER:
      addContainer();
      return true;
    case CM_NODE_RENAME:
      project_window_.beginRename();
      return true;
    case CM_NODE_REMOVE:
      removeSelected();
      return true;
    case CM_NODE_PROPERTIES:
      editSelected();
      return true;
    case CM_PROJECT_BUILD_COMMAND:
      editBuild();
      return true;
    default:
      return false;
  }
}

void Application::openNode(unsigned int node, bool alternative) {
  const NodeInfo* info = project_.node(node);
  if (info == nullptr) {
    return;
  }
  const std::string name = info->name;
  if (root_.project().OpenNode(node, alternative ? 1 : 0) == kToolNotHandled) {
    setStatus("No tool opens " + name);
  }
}

// The last part of a path is what was edited.
void Application::renameFromWindow(unsigned int node, const std::string& name) {
  const NodeInfo* info = project_.node(node);
  if (info == nullptr) {
    return;
  }
  const bool path = project_.tree().isPathName(info->parent, info->name, info->type) &&
                    fileName(name).size() == name.size() && name[0] != '#';
  renameAsked(node, path ? joinPath(folderOf(info->name), name) : name);
}

void Application::renameAsked(unsigned int node, const std::string& name) {
  const NodeInfo* info = project_.node(node);
  if (info == nullptr || name.empty()) {
    return;
  }
  const std::string from = info->name;
  const std::string to = project_.fullName(info->parent, name, info->type);
  const ProjectTree& tree = project_.tree();
  const bool files = tree.isPathName(info->parent, from, info->type) &&
                     tree.isPathName(info->parent, to, info->type);
  if (from == to || !files || isContainer(*info) || !store_.stamp(from).exists) {
    renameNode(node, to);
    return;
  }
  if (!samePath(from, to) && store_.stamp(to).exists) {
    renameNode(node, to);
    setStatus(to + " is there already; " + from + " keeps its name on the disk");
    return;
  }
  const int answer = ask("Rename the file on the disk as well?\n\n" + from + "\nto " + to,
                         MB_YESNOCANCEL | MB_ICONQUESTION);
  // While it was asked the node may have gone, or taken another name.
  info = project_.node(node);
  if (answer == IDCANCEL || info == nullptr || info->name != from) {
    return;
  }
  if (answer == IDNO || editors_.renameFile(from, to)) {
    renameNode(node, to);
  }
}

void Application::addFiles() {
  std::vector<std::string> paths;
  const bool deliver = isDelivery(project_.containerFor(project_window_.selected()));
  if (!askOpenNames(frame_.window(), project_.folder(), deliver, &paths) || !hasProject()) {
    return;
  }
  const unsigned int parent = project_.containerFor(project_window_.selected());
  int added = 0;
  for (const std::string& path : paths) {
    added += addNode(parent, path, {}) != 0 ? 1 : 0;
  }
  setStatus("Added " + std::to_string(added) + (added == 1 ? " file" : " files"));
}

bool Application::isDelivery(unsigned int node) const {
  const NodeInfo* info = project_.node(node);
  return info != nullptr && info->type == ProjectTree::kDeliveryType;
}

// Among what is delivered there are only files; elsewhere targets stand at the top, groups
// where one is.
unsigned int Application::parentForNew(const std::string& type) const {
  const unsigned int selected = project_.containerFor(project_window_.selected());
  const bool target = !type.empty() && type[0] == '.';
  if (target || type == ProjectTree::kDeliveryType) {
    return target && isDelivery(selected) ? selected : 0;
  }
  return isDelivery(selected) ? project_.node(selected)->parent : selected;
}

void Application::addContainer() {
  NodeFields fields;
  fields.type = isDelivery(project_.containerFor(project_window_.selected())) ? ".exe" : "Group";
  if (!askNode(frame_.window(), true, &fields) || !hasProject()) {
    return;
  }
  const unsigned int node = addNode(parentForNew(fields.type), fields.name, fields.type);
  if (node == 0) {
    showError(fields.name + " cannot be added here.");
    return;
  }
  if (isDelivery(node)) {
    // Whatever comes next goes into it.
    project_window_.select(node);
  }
  if (!fields.description.empty()) {
    describeNode(node, fields.description);
  }
  setNodePath(node, kIncludePathKind, fields.include);
  setNodePath(node, kSourcePathKind, fields.source);
}

void Application::removeSelected() {
  const NodeInfo* info = project_.node(project_window_.selected());
  if (info == nullptr) {
    return;
  }
  const unsigned int id = info->id;
  std::string question = "Remove " + info->name;
  question += info->children.empty() ? "" : " and all that is below it";
  question += " from the project?\n\nFiles stay on the disk.";
  if (ask(question, MB_YESNO | MB_ICONQUESTION) == IDYES) {
    removeNode(id);
  }
}

void Application::editSelected() {
  const NodeInfo* info = project_.node(project_window_.selected());
  if (info == nullptr) {
    return;
  }
  const unsigned int id = info->id;
  const NodeFields before = {info->name, info->type, info->description,
                             ownOption(*info, kIncludePathKind), ownOption(*info, kSourcePathKind)};
  NodeFields fields = before;
  if (!askNode(frame_.window(), false, &fields)) {
    return;
  }
  if (fields.description != before.description) {
    describeNode(id, fields.description);
  }
  if (fields.include != before.include) {
    setNodePath(id, kIncludePathKind, fields.include);
  }
  if (fields.source != before.source) {
    setNodePath(id, kSourcePathKind, fields.source);
  }
  // Last, as it may ask.
  if (fields.name != before.name) {
    renameAsked(id, fields.name);
  }
}

void Application::editBuild() {
  std::string command = project_.build();
  const std::string file = project_.file();
  if (askBuild(frame_.window(), &command) && project_.file() == file) {
    project_.setBuild(command);
  }
}

}  // namespace workbench
