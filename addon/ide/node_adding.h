// A project's tree as it is added to.
#pragma once

#include <string>

namespace kesto {

class NodeAdding {
 public:
  virtual ~NodeAdding() = default;
  // 0 where there is none.
  virtual unsigned top() const = 0;
  // 0 for a node that has none above it, and for one that is gone.
  virtual unsigned parent(unsigned node) const = 0;
  // The new node behind the others below the parent; 0 when the IDE refuses it. An empty type
  // leaves it to the IDE.
  virtual unsigned add(unsigned parent, const std::string& name, const std::string& type) = 0;
};

}  // namespace kesto
