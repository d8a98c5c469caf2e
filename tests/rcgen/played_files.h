// What the generator works on, played by the test: a disk, its listings, and what is told.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "addon/rcgen/generator_host.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

class PlayedFiles : public PlayedDisk, public MaskLister, public GeneratorNotices {
 public:
  // What each directory lists, in that order.
  std::map<std::string, std::vector<std::string>> scripts;
  std::map<std::string, std::vector<std::string>> subdirectories;
  bool endless = false;  // every directory holds two more
  std::string notices;   // a line each

  GeneratorHost host() { return {*this, *this, *this}; }

  void listFiles(const char* directory, const char* /*mask*/, Tableau<String>& names) override {
    add(scripts[directory], names);
  }
  void listDirectories(const char* directory, Tableau<String>& names) override {
    ((done += "list ") += directory) += '\n';
    add(endless ? std::vector<std::string>{"loop", "more"} : subdirectories[directory], names);
  }
  void notice(const std::string& text) override { (notices += text) += '\n'; }

 private:
  static void add(const std::vector<std::string>& from, Tableau<String>& names) {
    for (const std::string& name : from) {
      names.append(new String(name.c_str()));
    }
  }
};

}  // namespace kesto
