#include "workbench/project/project.h"

#include <algorithm>
#include <utility>

#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

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

std::string Project::typeFor(const std::string& name) {
  const std::string_view extension = extensionOf(name);
  // A file without an extension is a text like any other.
  return extension.size() > 1 ? std::string(extension) : ".txt";
}

std::string Project::fullName(unsigned int parent, const std::string& name,
                              const std::string& type) const {
  const bool whole = name.empty() || !tree_.isPathName(parent, name, type) || isAbsolutePath(name);
  return whole ? name : normalPath(joinPath(folder_, name));
}

std::string Project::fileFor(const std::string& folder) {
  const std::string_view name = fileName(folder);
  // A drive's root has no name of its own.
  return joinPath(folder, std::string(name.empty() ? "project" : name) + ".ide");
}

void Project::load(const FolderContent& content, const std::string& file) {
  close();
  folder_ = content.path;
  file_ = file.empty() ? fileFor(folder_) : file;
  addFolder(0, content);
  setPaths(content);
  modified_ = false;
}

void Project::load(const std::string& file, ProjectTree tree) {
  close();
  file_ = file;
  folder_ = folderOf(file);
  tree_ = std::move(tree);
}

void Project::close() {
  ProjectTree none;
  none.last_id = tree_.last_id;
  tree_ = std::move(none);
  prepared_.clear();
  file_.clear();
  folder_.clear();
  modified_ = false;
}

void Project::addFolder(unsigned int parent, const FolderContent& content) {
  const unsigned int id = add(parent, content.path, ProjectTree::kFolderType);
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
      append(&include, std::string(name));
    } else if (isSourceFolder(name)) {
      append(&source, std::string(name));
    }
  }
  setNodeOption(top(), kIncludePathKind, include);
  setNodeOption(top(), kSourcePathKind, source);
}

const NodeInfo* Project::node(unsigned int id) const {
  return tree_.find(id);
}

unsigned int Project::top() const {
  return tree_.top.empty() ? 0 : tree_.top.front();
}

unsigned int Project::firstChild(unsigned int id) const {
  const NodeInfo* info = node(id);
  return info == nullptr || info->children.empty() ? 0 : info->children.front();
}

unsigned int Project::nextSibling(unsigned int id) const {
  const NodeInfo* info = node(id);
  if (info == nullptr) {
    return 0;
  }
  const NodeInfo* parent = node(info->parent);
  const std::vector<unsigned int>& siblings = parent == nullptr ? tree_.top : parent->children;
  return info->place + 1 < siblings.size() ? siblings[info->place + 1] : 0;
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
  collect(tree_.top, &result);
  return result;
}

int Project::depth(unsigned int id) const {
  return tree_.level(id) - 1;
}

unsigned int Project::find(const std::string& name) const {
  for (const NodeInfo* info : nodes()) {
    if (samePath(info->name, name)) {
      return info->id;
    }
  }
  return 0;
}

unsigned int Project::findType(const std::string& type) const {
  for (const NodeInfo* info : nodes()) {
    if (info->type == type) {
      return info->id;
    }
  }
  return 0;
}

unsigned int Project::containerFor(unsigned int id) const {
  const NodeInfo* info = node(id != 0 ? id : top());
  while (info != nullptr) {
    const NodeInfo* parent = node(info->parent);
    const bool delivered = parent != nullptr && parent->type == ProjectTree::kDeliveryType;
    if (isContainer(*info) && !delivered) {
      return info->id;
    }
    info = parent;
  }
  return 0;
}

unsigned int Project::add(unsigned int parent, const std::string& name, const std::string& type) {
  const bool second = type == ProjectTree::kDeliveryType &&
                      (name != ProjectTree::kDeliveryType || findType(type) != 0);
  const NodeInfo* added = loaded() && !second ? tree_.add(parent, name, type) : nullptr;
  if (added == nullptr) {
    return 0;
  }
  modified_ = true;
  return added->id;
}

bool Project::remove(unsigned int id) {
  if (node(id) == nullptr) {
    return false;
  }
  tree_.remove(id);
  modified_ = true;
  return true;
}

void Project::assign(std::string* value, const std::string& text) {
  modified_ = modified_ || *value != text;
  *value = text;
}

bool Project::rename(unsigned int id, const std::string& name) {
  NodeInfo* info = tree_.find(id);
  const bool fixed = info != nullptr && info->type == ProjectTree::kDeliveryType &&
                     name != ProjectTree::kDeliveryType;
  if (info == nullptr || name.empty() || fixed) {
    return false;
  }
  assign(&info->name, name);
  return true;
}

bool Project::describe(unsigned int id, const std::string& description) {
  NodeInfo* info = tree_.find(id);
  if (info == nullptr) {
    return false;
  }
  assign(&info->description, description);
  return true;
}

bool Project::setNodeOption(unsigned int id, int kind, const std::string& text) {
  NodeInfo* info = tree_.find(id);
  if (info == nullptr) {
    return false;
  }
  if (text.empty()) {
    modified_ = info->options.erase(kind) > 0 || modified_;
  } else {
    assign(&info->options[kind], text);
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

bool Project::nodeFolders(unsigned int id, int kind, std::string* folders) const {
  const std::string* text = nodeOption(id, kind);
  if (text == nullptr) {
    return false;
  }
  folders->clear();
  std::string_view rest = *text;
  while (!rest.empty()) {
    const std::size_t end = rest.find(';');
    const std::string_view folder = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (!folder.empty()) {
      append(folders,
             isAbsolutePath(folder) ? std::string(folder) : normalPath(joinPath(folder_, folder)));
    }
  }
  return true;
}

void Project::setBuild(const std::string& command) {
  if (loaded()) {
    assign(&tree_.build, command);
  }
}

const std::string* Project::option(const std::string& name) const {
  const auto found = tree_.options.find(name);
  return found == tree_.options.end() ? nullptr : &found->second;
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
  const auto [option, added] = tree_.options.emplace(found->second.first, std::string());
  modified_ = modified_ || added;
  assign(&option->second, found->second.second);
  prepared_.erase(found);
  return true;
}

}  // namespace workbench
