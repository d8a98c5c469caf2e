// Directories played by a test: what each lists, in that order.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "addon/foundation/directory_lister.h"

namespace kesto {

// Masks that only the system can judge fit "odd.c".
class PlayedTree : public DirectoryLister {
 public:
  using Kind = DirectoryEntries::Kind;
  using Names = std::vector<std::string>;
  std::map<std::string, Names> sources;
  std::map<std::string, Names> folders;
  std::map<std::string, Names> links;  // to directories
  std::map<std::string, std::string> short_names;
  bool endless = false;  // every directory holds two more
  Names listed;          // "DIRECTORY|MASK"

  void list(const char* directory, const char* mask, DirectoryEntries& entries) override {
    listed.push_back(std::string(directory) + '|' + mask);
    if (mask != std::string("*")) {
      entries.add(Kind::kDirectory, "odd.d");
      entries.add(Kind::kFile, "odd.c");
      return;
    }
    add(Kind::kFile, sources[directory], entries);
    add(Kind::kLink, links[directory], entries);
    add(Kind::kDirectory, endless ? Names{"loop", "more"} : folders[directory], entries);
  }

 private:
  void add(Kind kind, const Names& names, DirectoryEntries& entries) {
    for (const std::string& name : names) {
      entries.add(kind, name, short_names[name]);
    }
  }
};

}  // namespace kesto
