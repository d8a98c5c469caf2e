#include "addon/delivery/project_options.h"

#include <algorithm>

namespace kesto {

DeliveryProjectOptions deliveryProjectOptions;

namespace {

constexpr char kTypeStem[] = "Kesto_ODR_TYP_";
constexpr char kDirectoryStem[] = "Kesto_ODR_REP_";

}  // namespace

void DeliveryProjectOptions::readGroups(ProjectOptionStore& store) {
  table_name = "Delivery";
  groups.clear();
  const int count = std::min(count_.value, kOptionListLimit);
  for (int i = 0; i < count; ++i) {
    DeliveryGroup group;
    readText(store, entryOptionName(kTypeStem, i).c_str(), group.type);
    readText(store, entryOptionName(kDirectoryStem, i).c_str(), group.directory);
    if (!group.type.empty()) {
      groups.push_back(std::move(group));
    }
  }
}

void DeliveryProjectOptions::writeGroups(ProjectOptionStore& store) const {
  const int count = static_cast<int>(groups.size());
  writeInteger(store, count_.name, count);
  for (int i = 0; i < count; ++i) {
    const DeliveryGroup& group = groups[static_cast<size_t>(i)];
    writeText(store, entryOptionName(kTypeStem, i).c_str(), kEntryMarker, group.type);
    writeText(store, entryOptionName(kDirectoryStem, i).c_str(), kEntryMarker, group.directory);
  }
}

}  // namespace kesto
