// What a project holds: its nodes, its options, its build command, and the order
// in which its file had them with all that was not understood there. Plain values.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace workbench {

// Of a node: the folders searched for headers and for sources, separated by ";".
inline constexpr int kIncludePathKind = 1;
inline constexpr int kSourcePathKind = 3;

// How deep nodes may stand below each other; a node at the top is level 1.
inline constexpr int kDeepestNode = 64;
inline constexpr std::size_t kMostNodes = 100000;

// One item of a body of the project file, in the order of the file.
struct FileItem {
  enum class What { kKept, kBuild, kOption, kDescription, kPath, kNode };
  What what = What::kKept;
  std::string text;         // kept lines as they stand; the name of an option
  unsigned int number = 0;  // of a node its id, of a path its kind
};

struct NodeInfo {
  unsigned int id = 0;
  unsigned int parent = 0;  // 0 at the top level
  std::size_t place = 0;    // among its siblings
  std::string name;         // a file's full path, a folder's for a container
  std::string type;         // a file's extension with ".", else a word
  std::string description;
  std::vector<unsigned int> children;
  std::map<int, std::string> options;  // by kind
  std::vector<FileItem> items;
};

struct ProjectTree {
  std::map<unsigned int, NodeInfo> nodes;
  std::vector<unsigned int> top;
  unsigned int last_id = 0;
  std::map<std::string, std::string> options;  // bytes by name
  std::string build;                           // the command, empty for none
  std::vector<FileItem> items;
  bool crlf = true;  // the line ends of its file

  // The type of a container that is a folder of the disk.
  static constexpr char kFolderType[] = "Folder";
  // Of the one container of what is delivered; it is called so as well, as that is how
  // add-ons find it. What is in it are files, whatever their types hold elsewhere.
  static constexpr char kDeliveryType[] = "DELIVERY";
  // Of a container of sources that belong to no target.
  static constexpr char kSourcePoolType[] = "SourcePool";

  NodeInfo* find(unsigned int id);
  const NodeInfo* find(unsigned int id) const;
  // Those below a node, or at the top level for 0.
  std::vector<unsigned int>& childrenOf(unsigned int id) {
    return id == 0 ? top : nodes[id].children;
  }
  // Null when there are too many nodes, or the parent is gone or too deep.
  NodeInfo* add(unsigned int parent, const std::string& name, const std::string& type);
  // With all that is below it.
  void remove(unsigned int id);
  // Whether such a node's name is a path below that parent: a file's, which has any type
  // where it is delivered, or a folder's. A name that starts with "#" never is.
  bool isPathName(unsigned int parent, const std::string& name, const std::string& type) const;
  // 1 at the top.
  int level(unsigned int id) const;
};

}  // namespace workbench
