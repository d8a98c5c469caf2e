// What the generator works on, played by the test: a disk, its listings, and what is told.
#pragma once

#include <string>

#include "addon/rcgen/generator_host.h"
#include "tests/foundation/played_disk.h"
#include "tests/foundation/played_tree.h"

namespace kesto {

class PlayedFiles : public PlayedDisk, public PlayedTree, public GeneratorNotices {
 public:
  std::string notices;  // a line each

  GeneratorHost host() { return {*this, *this, *this}; }

  void list(const char* directory, const char* mask, DirectoryEntries& entries) override {
    ((done += "list ") += directory) += '\n';
    PlayedTree::list(directory, mask, entries);
  }
  void notice(const std::string& text) override { (notices += text) += '\n'; }
};

}  // namespace kesto
