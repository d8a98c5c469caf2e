// A file system played by the test: texts and times in memory, listed in the order in
// which they were put there. What is done to it is noted.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "addon/rcgen/rc_files.h"

namespace kesto {

class PlayedFiles : public RcFiles {
 public:
  struct File {
    std::string text;
    std::int64_t modified;
  };

  std::map<std::string, File> files;
  // What each directory lists.
  std::map<std::string, std::vector<std::string>> scripts;
  std::map<std::string, std::vector<std::string>> directories;
  std::map<std::string, std::vector<std::string>> links;  // to directories
  bool endless = false;                                   // every directory holds two more
  bool locked = false;                                    // nothing can be written
  std::int64_t now = 100;
  std::string done;  // "read PATH", "write PATH", ...; a line each

  void put(const std::string& path, const std::string& text) { files[path] = {text, now}; }
  std::string takeDone() { return std::exchange(done, std::string()); }

  void list(const char* directory, const char* /*mask*/, DirectoryEntries& entries) override {
    note("list", directory);
    add(DirectoryEntries::Kind::kFile, scripts[directory], entries);
    add(DirectoryEntries::Kind::kDirectory,
        endless ? std::vector<std::string>{"loop", "more"} : directories[directory], entries);
    add(DirectoryEntries::Kind::kLink, links[directory], entries);
  }
  std::optional<RcFileStatus> status(const char* path) override {
    const auto found = files.find(path);
    if (found == files.end()) {
      return std::nullopt;
    }
    return RcFileStatus{found->second.modified, directories.count(path) != 0};
  }
  bool read(const char* path, std::string& text) override {
    note("read", path);
    const bool there = files.count(path) != 0;
    text = there ? files[path].text : "";
    return there;
  }
  bool write(const char* path, std::string_view text) override {
    note("write", path);
    if (!locked) {
      put(path, std::string(text));
    }
    return !locked;
  }
  bool append(const char* path, std::string_view text) override {
    note("append", path);
    files[path].text += text;
    return true;
  }
  void remove(const char* path) override {
    note("remove", path);
    files.erase(path);
  }
  void rename(const char* path, const char* new_path) override {
    note("rename", path);
    if (files.count(new_path) == 0) {
      files[new_path] = files[path];
      files.erase(path);
    }
  }

 private:
  void note(const char* what, const char* path) { done += std::string(what) + ' ' + path + '\n'; }
  static void add(DirectoryEntries::Kind kind, const std::vector<std::string>& names,
                  DirectoryEntries& entries) {
    for (const std::string& name : names) {
      entries.add(kind, name);
    }
  }
};

}  // namespace kesto
