// A file system played by a test: sources by path, and what was read and put, in order.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "addon/html/site_generation.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

class PlayedSite : public PlayedDisk, public DirectoryLister, public SiteProgress {
 public:
  std::vector<std::pair<std::string, std::string>> sources;  // path and text, in listing order
  std::string reads;                                         // each path and a line feed
  std::string pages;                                         // "==== PATH" and text of each
  std::string names;                                         // of the pages
  std::string progress;

  void list(const char* directory, const char* /*mask*/, DirectoryEntries& entries) override {
    std::string last;
    const std::string root = directory + std::string("\\");
    for (const auto& [path, content] : sources) {
      if (path.starts_with(root)) {
        const std::string_view name = std::string_view(path).substr(root.size());
        const std::string_view first = name.substr(0, name.find('\\'));
        if (first == name) {
          entries.add(DirectoryEntries::Kind::kFile, name);
        } else if (first != last) {
          last = first;
          entries.add(DirectoryEntries::Kind::kDirectory, first);
        }
      }
    }
  }
  bool read(const char* path, std::string& text) override {
    for (const auto& [name, content] : sources) {
      if (name == path) {
        ((reads += path)) += '\n';
        text = content;
        return true;
      }
    }
    return false;
  }
  void reading(int files_read) override { (progress += 'r') += std::to_string(files_read); }
  void writing(int written, int all) override {
    last_written = written;
    last_all = all;
  }

  int last_written = 0;
  int last_all = 0;

 protected:
  void placed(const std::string& path) override {
    (((pages += "==== ") += path) += '\n') += files[path].text;
    (names += path.substr(path.rfind('\\') + 1)) += '\n';
  }
};

}  // namespace kesto
