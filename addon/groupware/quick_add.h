// Quick add: a new node beside the one that is worked on, or inside a container made for it.
// Plain values; any thread.
#pragma once

#include <cstddef>
#include <string>

#include "addon/ide/node_adding.h"

namespace kesto {

// Characters of the fields.
inline constexpr std::size_t kNodeNameLimit = 180;
inline constexpr std::size_t kContainerNameLimit = 255;

// Where the container goes, seen from the node that is worked on.
enum class ContainerLevel { kSibling, kParent, kRoot };

struct QuickAddFields {
  std::string name;
  bool in_container = false;
  std::string container = {};
  ContainerLevel level = ContainerLevel::kParent;
};

enum class QuickAddRefusal { kNone, kNoName, kNoParent, kNoContainerName, kNoContainer };

struct QuickAddResult {
  QuickAddRefusal refusal = QuickAddRefusal::kNone;
  unsigned node = 0;  // 0 as well when the IDE refused it
};

// current: the node that is worked on, 0 when it is gone.
QuickAddResult quickAdd(NodeAdding& project, unsigned current, const QuickAddFields& fields);

// What the person is told; null for kNone.
const char* refusalText(QuickAddRefusal refusal);

}  // namespace kesto
