// What the generator works on, played by the test: a disk, its listings, and what is told.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "addon/rcgen/generator_host.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

class PlayedFiles : public PlayedDisk, public DirectoryLister, public GeneratorNotices {
 public:
  // What each directory lists, in that order.
  std::map<std::string, std::vector<std::string>> scripts;
  std::map<std::string, std::vector<std::string>> subdirectories;
  std::map<std::string, std::vector<std::string>> links;  // to directories
  bool endless = false;                                   // every directory holds two more
  std::string notices;                                    // a line each

  GeneratorHost host() { return {*this, *this, *this}; }

  void list(const char* directory, const char* /*mask*/, DirectoryEntries& entries) override {
    ((done += "list ") += directory) += '\n';
    add(DirectoryEntries::Kind::kFile, scripts[directory], entries);
    add(DirectoryEntries::Kind::kDirectory,
        endless ? std::vector<std::string>{"loop", "more"} : subdirectories[directory], entries);
    add(DirectoryEntries::Kind::kLink, links[directory], entries);
  }
  void notice(const std::string& text) override { (notices += text) += '\n'; }

 private:
  static void add(DirectoryEntries::Kind kind, const std::vector<std::string>& names,
                  DirectoryEntries& entries) {
    for (const std::string& name : names) {
      entries.add(kind, name);
    }
  }
};

}  // namespace kesto
