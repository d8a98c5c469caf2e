// Lists folders of the disk.
#pragma once

#include "workbench/project/folder_walk.h"

namespace workbench {

class DiskLister final : public FolderLister {
 public:
  bool list(const std::string& folder, std::vector<FolderEntry>* entries) override;
  std::uint64_t identity(const std::string& folder) override;
};

}  // namespace workbench
