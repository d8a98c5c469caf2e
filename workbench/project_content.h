// What is in the open project: its nodes, its options and its build command.
// User-interface thread only.
#pragma once

#include <string>
#include <vector>

namespace workbench {

// A node of the project's tree, for those who list it.
struct ProjectEntry {
  int depth = 0;  // 0 at the top
  std::string name;
  std::string type;
  std::string description;
};

class ProjectContent {
 public:
  // The node of that name, or of the path that Paths::resolve makes of it; 0 for none.
  virtual unsigned int findNode(const std::string& name) = 0;
  // Edits of the tree, told to the clients of the project. A parent of 0 is the
  // top level. add returns 0 and the others false when it cannot be done.
  virtual unsigned int addNode(unsigned int parent, const std::string& name,
                               const std::string& type) = 0;
  virtual bool renameNode(unsigned int node, const std::string& name) = 0;
  virtual bool removeNode(unsigned int node) = 0;
  virtual bool describeNode(unsigned int node, const std::string& description) = 0;
  // The node's own option of a NodeOptionKind; an empty text takes it away.
  virtual bool setNodePath(unsigned int node, int kind, const std::string& folders) = 0;
  // The project's nodes in tree order.
  virtual std::vector<ProjectEntry> projectEntries() = 0;
  // The bytes that the project keeps under a name. False when there are none, or
  // no project (write: no project).
  virtual bool readOption(const std::string& name, std::string* bytes) = 0;
  virtual bool writeOption(const std::string& name, const std::string& bytes) = 0;
  // The command that make runs; empty for none.
  virtual void setBuildCommand(const std::string& command) = 0;

 protected:
  ~ProjectContent() = default;
};

}  // namespace workbench
