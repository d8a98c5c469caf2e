// Whoever shows the project's tree: it follows each change before the clients of
// the project hear of it. User-interface thread only.
#pragma once

namespace workbench {

class ProjectView {
 public:
  virtual void nodeAdded(unsigned int node) = 0;
  virtual void nodeRemoved(unsigned int node) = 0;
  virtual void nodeChanged(unsigned int node) = 0;

 protected:
  ~ProjectView() = default;
};

}  // namespace workbench
