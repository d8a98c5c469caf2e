// A file system played by a test: sources by path, and what was read and put, in order.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "addon/html/site_generation.h"
#include "tests/foundation/played_disk.h"

namespace kesto {

class PlayedSite : public PlayedDisk, public MaskLister, public SiteProgress {
 public:
  std::vector<std::pair<std::string, std::string>> sources;  // path and text, in listing order
  std::string reads;                                         // each path and a line feed
  std::string pages;                                         // "==== PATH" and text of each
  std::string names;                                         // of the pages
  std::string progress;

  // Masks are "*" and the name's end; a mask without "*" fits no file.
  void listFiles(const char* directory, const char* mask, Tableau<String>& found) override {
    list(directory, [&](std::string_view name) {
      const std::string_view end(mask);
      if (name.find('\\') == std::string_view::npos && end.starts_with('*') &&
          name.ends_with(end.substr(1))) {
        found.append(new String(name));
      }
    });
  }
  void listDirectories(const char* directory, Tableau<String>& found) override {
    std::string last;
    list(directory, [&](std::string_view name) {
      const std::size_t end = name.find('\\');
      if (end != std::string_view::npos && name.substr(0, end) != last) {
        last = name.substr(0, end);
        found.append(new String(std::string_view(last)));
      }
    });
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

 private:
  // Shows each source below the directory by its path from there.
  template <class Each>
  void list(const std::string& directory, const Each& each) const {
    for (const auto& [name, content] : sources) {
      if (name.starts_with(directory + '\\')) {
        each(std::string_view(name).substr(directory.size() + 1));
      }
    }
  }
};

}  // namespace kesto
