// The file system as the searches see it. Holds nothing; any thread.
#pragma once

#include "addon/navigation/directory_walk.h"
#include "addon/navigation/include_search.h"

namespace kesto {

class DirectoryListing : public DirectoryLister, public MaskLister {
 public:
  bool isFile(const char* path) override;
  // The mask goes to the system as it is.
  void listFiles(const char* directory, const char* mask, Tableau<String>& names) override;
  // Overrides that of both bases.
  void listDirectories(const char* directory, Tableau<String>& names) override;
};

}  // namespace kesto
