#include "workbench/project/project_tree.h"

namespace workbench {

NodeInfo* ProjectTree::find(unsigned int id) {
  const auto found = nodes.find(id);
  return found == nodes.end() ? nullptr : &found->second;
}

const NodeInfo* ProjectTree::find(unsigned int id) const {
  const auto found = nodes.find(id);
  return found == nodes.end() ? nullptr : &found->second;
}

int ProjectTree::level(unsigned int id) const {
  int result = 0;
  for (const NodeInfo* info = find(id); info != nullptr; info = find(info->parent)) {
    ++result;
  }
  return result;
}

NodeInfo* ProjectTree::add(unsigned int parent, const std::string& name, const std::string& type) {
  if (nodes.size() >= kMostNodes ||
      (parent != 0 && (find(parent) == nullptr || level(parent) >= kDeepestNode))) {
    return nullptr;
  }
  const unsigned int id = ++last_id;
  NodeInfo& info = nodes[id];
  info.id = id;
  info.parent = parent;
  info.name = name;
  info.type = type;
  std::vector<unsigned int>& siblings = childrenOf(parent);
  info.place = siblings.size();
  siblings.push_back(id);
  return &info;
}

void ProjectTree::remove(unsigned int id) {
  const NodeInfo* info = find(id);
  if (info == nullptr) {
    return;
  }
  std::vector<unsigned int>& siblings = childrenOf(info->parent);
  siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(info->place));
  for (std::size_t i = info->place; i < siblings.size(); ++i) {
    nodes[siblings[i]].place = i;
  }
  std::vector<unsigned int> doomed = {id};
  while (!doomed.empty()) {
    const auto found = nodes.find(doomed.back());
    doomed.pop_back();
    doomed.insert(doomed.end(), found->second.children.begin(), found->second.children.end());
    nodes.erase(found);
  }
}

bool ProjectTree::isPathName(unsigned int parent, const std::string& name,
                             const std::string& type) const {
  const NodeInfo* above = find(parent);
  const bool file =
      (!type.empty() && type[0] == '.') || (above != nullptr && above->type == kDeliveryType);
  return (file || type == kFolderType) && !(!name.empty() && name[0] == '#');
}

}  // namespace workbench
