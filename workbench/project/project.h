// The open project: its tree of nodes and the options kept in it, whether from a
// project file or made of a folder's sources. It knows what has changed since it
// was loaded or saved. Plain values, one thread.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "workbench/project/folder_walk.h"
#include "workbench/project/project_tree.h"

namespace workbench {

// Whether other nodes may stand below it: a program, a library, or a word.
bool isContainer(const NodeInfo& node);

class Project {
 public:
  // FOLDER\NAME.ide, as the project of a folder is called.
  static std::string fileFor(const std::string& folder);
  // Fills the project from a walked folder, closing what was open; an empty file
  // name means that of fileFor.
  void load(const FolderContent& content, const std::string& file = {});
  // Takes over what the project file held, closing what was open. The tree's ids
  // must go on from lastId().
  void load(const std::string& file, ProjectTree tree);
  unsigned int lastId() const { return tree_.last_id; }
  void close();
  bool loaded() const { return !file_.empty(); }
  // Full path, empty without a project; the file need not exist.
  const std::string& file() const { return file_; }
  const std::string& folder() const { return folder_; }
  // The type of a file of which nothing else is said.
  static std::string typeFor(const std::string& name);
  // What a node of that type is called below that parent: the full path for a file or
  // folder, which may be given from the project's folder on; any other name, and one that
  // starts with "#", as it stands.
  std::string fullName(unsigned int parent, const std::string& name, const std::string& type) const;

  // 0 stands for "none" throughout; a node that is gone is answered like 0.
  const NodeInfo* node(unsigned int id) const;
  unsigned int top() const;
  unsigned int firstChild(unsigned int id) const;
  unsigned int nextSibling(unsigned int id) const;
  // The first of that name in tree order.
  unsigned int find(const std::string& name) const;
  // The first container of that type, in tree order.
  unsigned int findType(const std::string& type) const;
  // The container that a new node goes to where this one is selected; 0 for the top level.
  unsigned int containerFor(unsigned int id) const;
  unsigned int add(unsigned int parent, const std::string& name, const std::string& type);
  bool remove(unsigned int id);
  // False for a node that is gone; for an empty name too, and a container of deliveries keeps
  // the name it must have.
  bool rename(unsigned int id, const std::string& name);
  bool describe(unsigned int id, const std::string& description);
  // An empty text takes the node's own option away.
  bool setNodeOption(unsigned int id, int kind, const std::string& text);
  // Nodes in tree order.
  std::vector<const NodeInfo*> nodes() const;
  int depth(unsigned int id) const;

  // Own or inherited; null when none is set.
  const std::string* nodeOption(unsigned int id, int kind) const;
  // The same with full paths. False when none is set.
  bool nodeFolders(unsigned int id, int kind, std::string* folders) const;
  const std::string* option(const std::string& name) const;
  const std::string& build() const { return tree_.build; }
  void setBuild(const std::string& command);
  // What is written to the project file.
  const ProjectTree& tree() const { return tree_; }
  // Whether it differs from what was loaded or saved.
  bool modified() const { return modified_; }
  void markSaved() { modified_ = false; }
  void markUnsaved() { modified_ = true; }
  // Prepares a change; 0 without a project.
  unsigned int prepareOption(const std::string& name, const std::string& bytes);
  // Carries the change out; false for a change that is not there.
  bool commitOption(unsigned int change);

 private:
  void addFolder(unsigned int parent, const FolderContent& content);
  void setPaths(const FolderContent& content);
  void collect(const std::vector<unsigned int>& ids, std::vector<const NodeInfo*>* result) const;
  void assign(std::string* value, const std::string& text);

  std::string file_;
  std::string folder_;
  ProjectTree tree_;  // its last_id is never reused within a run
  bool modified_ = false;
  std::map<unsigned int, std::pair<std::string, std::string>> prepared_;
  unsigned int last_change_ = 0;
};

}  // namespace workbench
