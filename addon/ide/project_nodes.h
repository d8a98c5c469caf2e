// The nodes of the open project, through the IDE's project service. Short-lived: it
// holds the service.
#pragma once

#include "addon/ide/access.h"
#include "addon/ide/node_adding.h"
#include "addon/ide/node_tree.h"

namespace kesto {

class ProjectNodes : public NodeTree, public NodeAdding {
 public:
  ProjectNodes() : service_(getService<IProjectService>(ideapi::kProjectService)) {}

  unsigned top() const override { return service_ ? service_->GetTopNode() : 0; }
  unsigned firstChild(unsigned node) const override {
    return service_ ? service_->GetFirstChild(node) : 0;
  }
  unsigned nextSibling(unsigned node) const override {
    return service_ ? service_->GetNextSibling(node) : 0;
  }
  unsigned parent(unsigned node) const override {
    return service_ ? service_->GetNodeParent(node) : 0;
  }
  std::string name(unsigned node) const override;
  std::string type(unsigned node) const override;
  std::string description(unsigned node) const;

  bool exists(unsigned node) const;
  unsigned add(unsigned parent, const std::string& name, const std::string& type) override;
  // Takes the node, with its children, out of the project.
  void remove(unsigned node) const;
  // Opens the node's file in the IDE's other way; returns a ToolResult.
  int openAlternatively(unsigned node) const;

 private:
  ComPtr<IProjectService> service_;
};

}  // namespace kesto
