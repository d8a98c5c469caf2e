#include "addon/delivery/project_options.h"

#include <algorithm>
#include <memory>

namespace kesto {

DeliveryProjectOptions deliveryProjectOptions;

namespace {

constexpr char kNodeName[] = "DELIVERY";
constexpr char kTypeStem[] = "Kesto_ODR_TYP_";
constexpr char kDirectoryStem[] = "Kesto_ODR_REP_";
constexpr char kActiveStem[] = "Kesto_ODR_ACT_";

unsigned findNode(const NodeTree& tree) {
  std::vector<unsigned> next = {tree.top()};  // of each level on the way down
  while (!next.empty()) {
    const unsigned node = next.back();
    if (node == 0) {
      next.pop_back();
      continue;
    }
    if (tree.name(node) == kNodeName) {
      return node;
    }
    next.back() = tree.nextSibling(node);
    next.push_back(tree.firstChild(node));
  }
  return 0;
}

void move(Tableau<OneDelRep>& from, Tableau<OneDelRep>& to) {
  while (from.count() > 0) {
    to.append(from.remove(0));
  }
}

}  // namespace

OneDelRep* groupOfType(const Tableau<OneDelRep>& groups, const std::string& type) {
  for (int i = 0; i < groups.count(); ++i) {
    if (groups[i]->type.view() == type) {
      return groups[i];
    }
  }
  return nullptr;
}

DeliveryNodes findDeliveryNodes(const NodeTree& tree) {
  DeliveryNodes found;
  found.loaded = true;
  const unsigned node = findNode(tree);
  found.found = node != 0;
  for (unsigned child = found.found ? tree.firstChild(node) : 0; child != 0;
       child = tree.nextSibling(child)) {
    found.nodes.push_back({tree.name(child), tree.type(child)});
  }
  return found;
}

void DeliveryProjectOptions::readGroups(ProjectOptionStore& store) {
  table_name = "Delivery";
  groups.clear();
  set_aside_.clear();
  const int count = std::min(count_.value, kOptionListLimit);
  for (int i = 0; i < count; ++i) {
    std::string type;
    std::string directory;
    int active = 1;
    readText(store, entryOptionName(kTypeStem, i).c_str(), type);
    readText(store, entryOptionName(kDirectoryStem, i).c_str(), directory);
    readInteger(store, entryOptionName(kActiveStem, i).c_str(), active);
    if (!type.empty()) {
      auto group = std::make_unique<OneDelRep>(type, directory);
      group->active = active != 0 ? 1 : 0;
      groups.append(group.release());
    }
  }
}

void DeliveryProjectOptions::writeGroups(ProjectOptionStore& store) const {
  const Tableau<OneDelRep>& all = stored();
  writeInteger(store, count_.name, all.count());
  for (int i = 0; i < all.count(); ++i) {
    writeText(store, entryOptionName(kTypeStem, i).c_str(), kEntryMarker, all[i]->type.text());
    writeText(store, entryOptionName(kDirectoryStem, i).c_str(), kEntryMarker,
              all[i]->directory.text());
  }
}

void DeliveryProjectOptions::writeActive(ProjectOptionStore& store) const {
  const Tableau<OneDelRep>& all = stored();
  for (int i = 0; i < all.count(); ++i) {
    writeInteger(store, entryOptionName(kActiveStem, i).c_str(), all[i]->active);
  }
}

void DeliveryProjectOptions::rebuild(const DeliveryNodes& nodes) {
  if (!nodes.loaded) {
    groups.clear();
    set_aside_.clear();
    return;
  }
  if (!nodes.found) {
    move(groups, set_aside_);
    return;
  }
  move(set_aside_, groups);
  for (int i = 0; i < groups.count(); ++i) {
    groups[i]->present = 0;
  }
  for (const DeliveryNode& node : nodes.nodes) {
    OneDelRep* group = groupOfType(groups, node.type);
    if (group == nullptr) {
      group = std::make_unique<OneDelRep>(node.type, "").release();
      groups.append(group);
    }
    group->present = 1;
  }
  for (int i = groups.count(); i-- > 0;) {
    if (groups[i]->present == 0) {
      groups.removeAndDelete(i);
    }
  }
  groups.sortByText();
}

}  // namespace kesto
