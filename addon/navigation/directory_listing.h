// The file system as the include search sees it. Holds nothing;
// any thread.
#pragma once

#include "addon/navigation/include_search.h"

namespace kesto {

class DirectoryListing : public DirectoryLister {
 public:
  bool isFile(const char* path) override;
  void listDirectories(const char* directory, Tableau<String>& names) override;
};

}  // namespace kesto
