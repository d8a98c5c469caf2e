// The file whose text a mail carries in its note. It is read once; when the mail is on its
// way, what of it was sent goes, and what others have added meanwhile stays. Plain code.
#pragma once

#include <string>

#include "addon/foundation/file_system.h"

namespace kesto {

class IncludedFile {
 public:
  // A null path, or a file that cannot be read: nothing is included.
  explicit IncludedFile(const char* path);

  // The text in text mode and the closing lines. A zero byte, which would end a note,
  // comes as a blank.
  void appendTo(std::string& note) const;
  // Removes from the file what was read. One that no longer begins with it stays.
  void consume(FileSystem& files) const;

 private:
  std::string path_;
  std::string sent_;  // the file's bytes up to the end of its text
  bool included_ = false;
};

}  // namespace kesto
