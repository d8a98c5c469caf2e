// The files of this system, as they are copied and compared. Any thread.
#pragma once

#include "addon/ide/copy_files.h"

namespace kesto {

class CopyFilesWin : public CopyFiles {
 public:
  bool exists(const char* path) override;
  std::optional<std::uint64_t> size(const char* path) override;
  std::unique_ptr<CopySource> open(const char* path) override;
  CopyPlace place(const char* path) override;
  std::unique_ptr<CopyTarget> grow(const char* path) override;
};

}  // namespace kesto
