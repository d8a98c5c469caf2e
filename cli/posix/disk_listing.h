// The directories of this system as the core lists them: in the order in which Wine shows
// them, by their names in capitals. Links to directories are told as such; what is neither
// file nor directory, and a link that leads nowhere, is left out. One user, no locking.
#pragma once

#include "addon/foundation/directory_lister.h"
#include "addon/groupware/group_files.h"
#include "cli/posix/disk_names.h"

namespace kesto::cli {

class DiskListing : public DirectoryLister, public GroupListing {
 public:
  // The names must outlive it.
  explicit DiskListing(DiskNames& names) : names_(names) {}

  // Nothing at all, not even ".", for a directory that cannot be listed; errno says why.
  void list(const char* directory, const char* mask, DirectoryEntries& entries) override;
  void list(const char* directory, const char* mask, FileListener& listener) override;
  std::optional<FileFacts> facts(const char* path) override;

 private:
  DiskNames& names_;
};

// Whether a mask fits a name: "*" any characters, "?" any one, letters in either case.
bool fitsMask(std::string_view mask, std::string_view name);

}  // namespace kesto::cli
