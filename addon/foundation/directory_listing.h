// The file system as the features list it. Holds nothing; any thread.
#pragma once

#include "addon/foundation/directory_lister.h"

namespace kesto {

class DirectoryListing : public DirectoryLister, public FileLookup {
 public:
  void list(const char* directory, const char* mask, DirectoryEntries& entries) override;
  bool isFile(const char* path) override;
};

}  // namespace kesto
