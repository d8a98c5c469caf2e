// A project's tree as the menus walk it.
#pragma once

#include <string>

namespace kesto {

class NodeTree {
 public:
  virtual ~NodeTree() = default;
  // In the IDE's order of the nodes; 0 where there is none.
  virtual unsigned top() const = 0;
  virtual unsigned firstChild(unsigned node) const = 0;
  virtual unsigned nextSibling(unsigned node) const = 0;
  // Empty for a node that is gone.
  virtual std::string name(unsigned node) const = 0;
  // A file's extension with its ".", a container's word.
  virtual std::string type(unsigned node) const = 0;
};

}  // namespace kesto
