// What delivery keeps in a project: whether its tool is in the Tool menu, and the
// groups with their delivery directories.
#pragma once

#include <string>
#include <vector>

#include "addon/ide/project_options.h"

namespace kesto {

struct DeliveryGroup {
  std::string type;  // of the project nodes that belong to the group, never empty
  std::string directory;
};

class DeliveryProjectOptions {
 public:
  IntegerOption tool_present{"Kesto_WITHDELIVERY", 1};
  std::string table_name;
  std::vector<DeliveryGroup> groups;

  // The count is read ahead of the groups themselves.
  void readCount(ProjectOptionStore& store) { count_.read(store); }
  // Replaces the groups by the stored ones that have a type.
  void readGroups(ProjectOptionStore& store);
  // Writes count and groups.
  void writeGroups(ProjectOptionStore& store) const;

 private:
  IntegerOption count_{"Kesto_NB_ODR", 0};
};

extern DeliveryProjectOptions deliveryProjectOptions;

}  // namespace kesto
