// The open project: its tree of nodes and the options kept in it. In memory only;
// the options of a project closed are there again when it is reopened in the same
// run. Plain values, one thread.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "workbench/project/folder_walk.h"

namespace workbench {

// Of a node: the folders searched for headers and for sources, separated by ";".
inline constexpr int kIncludePathKind = 1;
inline constexpr int kSourcePathKind = 3;

struct NodeInfo {
  unsigned int id = 0;
  unsigned int parent = 0;  // 0 at the top level
  std::string name;         // a file's full path, a folder's for a container
  std::string type;         // a file's extension with ".", else a word
  std::string description;
  std::vector<unsigned int> children;
  std::map<int, std::string> options;
};

// Whether other nodes may stand below it: a program, a library, or a word.
bool isContainer(const NodeInfo& node);

class Project {
 public:
  // Fills the project from a walked folder, closing what was open.
  void load(const FolderContent& content);
  void close();
  bool loaded() const { return !file_.empty(); }
  // FOLDER\NAME.ide, empty without a project; no such file need exist.
  const std::string& file() const { return file_; }
  const std::string& folder() const { return folder_; }
  // What a node of that type is called: the full path for a file or folder, which
  // may be given from the project's folder on; any other name, and one that starts
  // with "#", as it stands.
  std::string fullName(const std::string& name, const std::string& type) const;

  // 0 stands for "none" throughout; a node that is gone is answered like 0.
  const NodeInfo* node(unsigned int id) const;
  unsigned int top() const;
  unsigned int firstChild(unsigned int id) const;
  unsigned int nextSibling(unsigned int id) const;
  // The first of that name in tree order.
  unsigned int find(const std::string& name) const;
  unsigned int add(unsigned int parent, const std::string& name, const std::string& type);
  bool remove(unsigned int id);
  // False for a node that is gone; for an empty name too.
  bool rename(unsigned int id, const std::string& name);
  bool describe(unsigned int id, const std::string& description);
  // An empty text takes the node's own option away.
  bool setNodeOption(unsigned int id, int kind, const std::string& text);
  // Nodes in tree order.
  std::vector<const NodeInfo*> nodes() const;
  int depth(unsigned int id) const;

  // Own or inherited; null when none is set.
  const std::string* nodeOption(unsigned int id, int kind) const;
  const std::string* option(const std::string& name) const;
  // Prepares a change; 0 without a project.
  unsigned int prepareOption(const std::string& name, const std::string& bytes);
  // Carries the change out; false for a change that is not there.
  bool commitOption(unsigned int change);

 private:
  using Options = std::map<std::string, std::string>;

  void addFolder(unsigned int parent, const FolderContent& content);
  void setPaths(const FolderContent& content);
  const std::vector<unsigned int>& siblingsOf(const NodeInfo& node) const;
  void collect(const std::vector<unsigned int>& ids, std::vector<const NodeInfo*>* result) const;

  std::string file_;
  std::string folder_;
  std::map<unsigned int, NodeInfo> nodes_;
  std::vector<unsigned int> top_nodes_;
  unsigned int last_id_ = 0;  // never reused within a run
  Options options_;
  std::map<unsigned int, std::pair<std::string, std::string>> prepared_;
  unsigned int last_change_ = 0;
  std::map<std::string, Options> remembered_;  // by file name in lower case
};

}  // namespace workbench
