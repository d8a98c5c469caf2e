// The files of both trees under Windows. Holds nothing; user-interface thread.
#pragma once

#include "addon/groupware/group_files.h"

namespace kesto {

class GroupFilesWin : public GroupFiles {
 public:
  // A file whose name the code page does not have is left out: no path leads to it.
  void list(const char* directory, const char* mask, FileListener& listener) override;
  std::optional<FileFacts> facts(const char* path) override;
  bool isDirectory(const char* path) override;
  bool holdsAnything(const char* directory) override;
  bool makeDirectory(const char* path) override;
  bool setWritable(const char* path, bool writable) override;
  // Without a word, as tellRefused; who has a person to tell overrides both.
  bool copy(const char* path, const char* new_path) override;
  bool copyAside(const char* path, const char* new_path) override;
  bool sameText(const char* path, const char* other_path) override;
  bool rename(const char* path, const char* new_path) override;
  bool writeText(const char* path, const std::string& text) override;
  void tellRefused(const char*) override {}
};

}  // namespace kesto
