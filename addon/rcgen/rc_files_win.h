// The generator's file system over Windows. Holds nothing; any thread.
#pragma once

#include "addon/foundation/directory_listing.h"
#include "addon/rcgen/rc_files.h"

namespace kesto {

class RcFilesWin : public RcFiles {
 public:
  void list(const char* directory, const char* mask, DirectoryEntries& entries) override;
  std::optional<RcFileStatus> status(const char* path) override;
  bool read(const char* path, std::string& text) override;
  bool write(const char* path, std::string_view text) override;
  bool append(const char* path, std::string_view text) override;
  void remove(const char* path) override;
  void rename(const char* path, const char* new_path) override;

 private:
  DirectoryListing listing_;
};

}  // namespace kesto
