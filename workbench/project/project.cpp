#include "workbench/project/project.h"

#include <algorithm>
#include <utility>

#include "workbench/project/path_text.h"

namespace workbench {
namespace {

constexpr char kFolderType[] = "Folder";

bool isIncludeFolder(std::string_view name) {
  const std::string folded = foldCase(name);
  return folded == "include" || folded == "inc" || folded == "includes" || folded == "headers";
}

bool isSourceFolder(std::string_view name) {
  const std::string folded = foldCase(name);
  return folded == "src" || folded == "source" || folded == "sources" || folded == "lib";
}

void append(std::string* list, const std::string& path) {
  *list += list->empty() ? "" : ";";
  *list += path;
}

}  // namespace

bool isContainer(const NodeInfo& node) {
  const std::string type = foldCase(node.type);
  return type.empty() || type[0] != '.' || type == ".exe" || type == ".dll" || type == ".lib";
}

std::string Project::fullName(const std::string& name, const std::string& type) const {
  const bool path = (!type.empty() && type[0] == '.') || type == kFolderType;
  if (!path || name.empty() || name[0] == '#' || isAbsolutePath(name)) {
    return name;
  }
  return joinPath(folder_, name);
}

void Project::load(const FolderContent& content) {
  close();
  folder_ = content.path;
  std::string_view name = fileName(content.path);
  // A drive's root has no name of its own.
  file_ = joinPath(content.path, std::string(name.empty() ? "project" : name) + ".ide");
  options_ = remembered_[foldCase(file_)];
  addFolder(0, content);
  setPaths(content);
}

void Project::close() {
  if (loaded()) {
    remembered_[foldCase(file_)] = std::move(options_);
  }
  options_.clear();
  prepared_.clear();
  nodes_.clear();
  top_nodes_.clear();
  file_.clear();
  folder_.clear();
}

void Project::addFolder(unsigned int parent, const FolderContent& content) {
  const unsigned int id = add(parent, content.path, kFolderType);
  for (const std::string& file : content.files) {
    add(id, file, std::string(extensionOf(file)));
  }
  for (const FolderContent& folder : content.folders) {
    addFolder(id, folder);
  }
}

void Project::setPaths(const FolderContent& content) {
  std::string include;
  std::string source;
  for (const FolderContent& folder : content.folders) {
    const std::string_view name = fileName(folder.path);
    if (isIncludeFolder(name)) {
      append(&include, folder.path);
    } else if (isSourceFolder(name)) {
      append(&source, folder.path);
    }
  }
  NodeInfo& top_node = nodes_[top_nodes_.front()];
  if (!include.empty()) {
    top_node.options[kIncludePathKind] = include;
  }
  if (!source.empty()) {
    top_node.options[kSourcePathKind] = source;
  }
}

const NodeInfo* Project::node(unsigned int id) const {
  const auto found = nodes_.find(id);
  return found == nodes_.end() ? nullptr : &found->second;
}

unsigned int Project::top() const {
  return top_nodes_.empty() ? 0 : top_nodes_.front();
}

unsigned int Project::firstChild(unsigned int id) const {
  const NodeInfo* info = node(id);
  return info == nullptr || info->children.empty() ? 0 : info->children.front();
}

const std::vector<unsigned int>& Project::siblingsOf(const NodeInfo& info) const {
  const NodeInfo* parent = node(info.parent);
  return parent == nullptr ? top_nodes_ : parent->children;
}

unsigned int Project::nextSibling(unsigned int id) const {
  const NodeInfo* info = node(id);
  if (info == nullptr) {
    return 0;
  }
  const std::vector<unsigned int>& siblings = siblingsOf(*info);
  auto place = std::find(siblings.begin(), siblings.end(), id);
  return place == siblings.end() || ++place == siblings.end() ? 0 : *place;
}

void Project::collect(const std::vector<unsigned int>& ids,
                      std::vector<const NodeInfo*>* result) const {
  for (const unsigned int id : ids) {
    const NodeInfo* info = node(id);
    result->push_back(info);
    collect(info->children, result);
  }
}

std::vector<const NodeInfo*> Project::nodes() const {
  std::vector<const NodeInfo*> result;
  collect(top_nodes_, &result);
  return result;
}

int Project::depth(unsigned int id) const {
  int result = 0;
  for (const NodeInfo* info = node(id); info != nullptr && info->parent != 0;
       info = node(info->parent)) {
    ++result;
  }
  return result;
}

unsigned int Project::find(const std::string& name) const {
  for (const NodeInfo* info : nodes()) {
    if (samePath(info->name, name)) {
      return info->id;
    }
  }
  return 0;
}

unsigned int Project::add(unsigned int parent, const std::string& name, const std::string& type) {
  if (!loaded() || (parent != 0 && node(parent) == nullptr)) {
    return 0;
  }
  const unsigned int id = ++last_id_;
  NodeInfo& info = nodes_[id];
  info.id = id;
  info.parent = parent;
  info.name = name;
  info.type = type;
  (parent == 0 ? top_nodes_ : nodes_[parent].children).push_back(id);
  return id;
}

bool Project::remove(unsigned int id) {
  const NodeInfo* info = node(id);
  if (info == nullptr) {
    return false;
  }
  const unsigned int parent = info->parent;
  std::erase(parent == 0 ? top_nodes_ : nodes_[parent].children, id);
  std::vector<unsigned int> doomed = {id};
  while (!doomed.empty()) {
    const auto found = nodes_.find(doomed.back());
    doomed.pop_back();
    doomed.insert(doomed.end(), found->second.children.begin(), found->second.children.end());
    nodes_.erase(found);
  }
  return true;
}

bool Project::rename(unsigned int id, const std::string& name) {
  const auto found = nodes_.find(id);
  if (found == nodes_.end() || name.empty()) {
    return false;
  }
  found->second.name = name;
  return true;
}

bool Project::describe(unsigned int id, const std::string& description) {
  const auto found = nodes_.find(id);
  if (found == nodes_.end()) {
    return false;
  }
  found->second.description = description;
  return true;
}

bool Project::setNodeOption(unsigned int id, int kind, const std::string& text) {
  const auto found = nodes_.find(id);
  if (found == nodes_.end()) {
    return false;
  }
  if (text.empty()) {
    found->second.options.erase(kind);
  } else {
    found->second.options[kind] = text;
  }
  return true;
}

const std::string* Project::nodeOption(unsigned int id, int kind) const {
  for (const NodeInfo* info = node(id); info != nullptr; info = node(info->parent)) {
    const auto found = info->options.find(kind);
    if (found != info->options.end()) {
      return &found->second;
    }
  }
  return nullptr;
}

const std::string* Project::option(const std::string& name) const {
  const auto found = options_.find(name);
  return found == options_.end() ? nullptr : &found->second;
}

unsigned int Project::prepareOption(const std::string& name, const std::string& bytes) {
  if (!loaded()) {
    return 0;
  }
  prepared_[++last_change_] = {name, bytes};
  return last_change_;
}

bool Project::commitOption(unsigned int change) {
  const auto found = prepared_.find(change);
  if (found == prepared_.end()) {
    return false;
  }
  options_[found->second.first] = std::move(found->second.second);
  prepared_.erase(found);
  return true;
}

}  // namespace workbench
