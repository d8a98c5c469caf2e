// What the generator works on, and whom it tells. The shell brings the system and the
// IDE's status line; tests and the benchmark play them.
#pragma once

#include <string>
#include <string_view>

#include "addon/foundation/directory_lister.h"
#include "addon/foundation/file_system.h"

namespace kesto {

class GeneratorNotices {
 public:
  virtual ~GeneratorNotices() = default;
  // What became of a file otherwise than a person will expect, in a sentence.
  virtual void notice(const std::string& text) = 0;
  // How a path stands in a sentence.
  virtual std::string shown(std::string_view path) { return std::string(path); }
};

struct GeneratorHost {
  DirectoryLister& lister;
  FileSystem& files;
  GeneratorNotices& notices;
};

}  // namespace kesto
