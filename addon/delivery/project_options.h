// What delivery keeps in a project: whether its tool is in the Tool menu, and the groups
// with their delivery directories. Plain code.
#pragma once

#include <string>
#include <vector>

#include "addon/delivery/one_del_rep.h"
#include "addon/foundation/tableau.h"
#include "addon/ide/node_tree.h"
#include "addon/ide/project_options.h"

namespace kesto {

// A node below "DELIVERY".
struct DeliveryNode {
  std::string file;
  std::string type;
};

// What a project offers to deliver.
struct DeliveryNodes {
  bool loaded = false;              // whether there is a project
  bool found = false;               // and a node "DELIVERY" in it
  std::vector<DeliveryNode> nodes;  // its children, in the project's order
};

// The children of the first node of that name, from the top down.
DeliveryNodes findDeliveryNodes(const NodeTree& tree);

// Types are compared with their case. Null when there is none.
OneDelRep* groupOfType(const Tableau<OneDelRep>& groups, const std::string& type);

class DeliveryProjectOptions {
 public:
  IntegerOption tool_present{"Kesto_WITHDELIVERY", 1};
  std::string table_name;
  Tableau<OneDelRep> groups;

  // The count is read ahead of the groups themselves.
  void readCount(ProjectOptionStore& store) { count_.read(store); }
  // Replaces the groups by the stored ones that have a type.
  void readGroups(ProjectOptionStore& store);
  // Writes count and groups, but for the flags of which are active.
  void writeGroups(ProjectOptionStore& store) const;
  void writeActive(ProjectOptionStore& store) const;

  // Makes the groups those of the nodes' types, sorted; what is known of a type stays. While
  // a project has no node "DELIVERY" there are none, and the former are stored all the same.
  void rebuild(const DeliveryNodes& nodes);

 private:
  const Tableau<OneDelRep>& stored() const { return groups.count() > 0 ? groups : set_aside_; }

  IntegerOption count_{"Kesto_NB_ODR", 0};
  Tableau<OneDelRep> set_aside_;  // of a project without the node
};

extern DeliveryProjectOptions deliveryProjectOptions;

}  // namespace kesto
