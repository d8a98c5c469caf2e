// The files of a group played by a test: texts, times and read-only flags in memory.
// Copies can fail, and something can happen ahead of one.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "addon/groupware/group_files.h"

namespace kesto {

class PlayedGroup : public GroupFiles {
 public:
  struct File {
    std::string text;
    std::int64_t modified = 0;
    bool writable = true;
    bool operator==(const File&) const = default;
  };

  std::map<std::string, File> files;
  std::set<std::string> directories;
  std::string failing;           // a part of the paths that no copy gets to
  int copies = 0;                // so far; copyAside counts
  std::string stuck;             // a path whose flag cannot be changed
  std::string refused;           // the paths that were told
  int failing_copy = 0;          // which of them fails; they count from 1
  std::set<std::string> listed;  // "DIRECTORY|MASK"
  int listings = 0;

  // Seconds; the folders come with it.
  void put(const std::string& path, const std::string& text, int seconds, bool writable = true) {
    for (std::size_t end = path.find('\\'); end != std::string::npos;
         end = path.find('\\', end + 1)) {
      directories.insert(path.substr(0, end));
    }
    files[path] = {text, seconds * FileFacts::kTicksPerSecond, writable};
  }
  // "TEXT w" or "TEXT r", nothing when there is no such file.
  std::string at(const std::string& path) const {
    const auto found = files.find(path);
    return found == files.end() ? "" : found->second.text + (found->second.writable ? " w" : " r");
  }

  void list(const char* directory, const char* mask, FileListener& listener) override {
    ++listings;
    listed.insert(std::string(directory) + '|' + mask);
    for (const std::string& path : directories) {
      const std::string name = nameIn(directory, path);
      if (!name.empty()) {
        listener.add(DirectoryEntries::Kind::kDirectory, name, "", {0, 0, true});
      }
    }
    for (const auto& [path, file] : files) {
      const std::string name = nameIn(directory, path);
      if (!name.empty()) {
        listener.add(DirectoryEntries::Kind::kFile, name, "", factsOf(file));
      }
    }
  }
  std::optional<FileFacts> facts(const char* path) override {
    const auto found = files.find(path);
    return found != files.end() ? std::optional(factsOf(found->second)) : std::nullopt;
  }
  bool isDirectory(const char* path) override { return directories.count(path) != 0; }
  bool holdsAnything(const char* path) override {
    const std::string below = std::string(path) + '\\';
    const auto found = files.lower_bound(below);
    return found != files.end() && found->first.starts_with(below);
  }
  bool makeDirectory(const char* path) override {
    const bool top = std::string(path).find('\\') == std::string::npos;
    return (top || isDirectory(parent(path).c_str())) && directories.insert(path).second;
  }
  bool setWritable(const char* path, bool writable) override {
    const auto found = files.find(path);
    if (found == files.end() || path == stuck) {
      return false;
    }
    found->second.writable = writable;
    return true;
  }
  bool copy(const char* path, const char* new_path) override {
    const auto there = files.find(new_path);
    return (there == files.end() || there->second.writable) && copyTo(path, new_path);
  }
  bool copyAside(const char* path, const char* new_path) override {
    return files.count(new_path) == 0 && copyTo(path, new_path);
  }
  bool sameText(const char* path, const char* other_path) override {
    return files.count(path) != 0 && files.count(other_path) != 0 &&
           files[path].text == files[other_path].text;
  }
  bool rename(const char* path, const char* new_path) override {
    if (files.count(path) == 0 || files.count(new_path) != 0) {
      return false;
    }
    files[new_path] = files[path];
    files.erase(path);
    return true;
  }
  bool writeText(const char* path, const std::string& text) override {
    files[path] = {text, 0, true};
    return true;
  }
  void tellRefused(const char* path) override { refused += path; }

 private:
  static FileFacts factsOf(const File& file) {
    return {file.modified, static_cast<std::int64_t>(file.text.size()), file.writable};
  }
  static std::string parent(const std::string& path) { return path.substr(0, path.rfind('\\')); }
  static std::string nameIn(const std::string& directory, const std::string& path) {
    return path.rfind('\\') != std::string::npos && parent(path) == directory
               ? path.substr(directory.size() + 1)
               : std::string();
  }
  bool copyTo(const std::string& path, const std::string& new_path) {
    ++copies;
    if (copies == failing_copy || files.count(path) == 0 ||
        !isDirectory(parent(new_path).c_str()) ||
        (!failing.empty() && new_path.find(failing) != std::string::npos)) {
      return false;
    }
    files[new_path] = {files[path].text, files[path].modified, true};
    return true;
  }
};

}  // namespace kesto
