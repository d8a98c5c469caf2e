// The file system as the features list it. Holds nothing; any thread.
#pragma once

#include "addon/foundation/directory_walk.h"

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
