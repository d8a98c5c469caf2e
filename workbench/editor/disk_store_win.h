// The file store on the disk.
#pragma once

#include "workbench/editor/file_store.h"

namespace workbench {

class DiskStore final : public FileStore {
 public:
  FileStamp stamp(const std::string& path) override;
  FileFault read(const std::string& path, std::uint64_t limit, std::string* bytes) override;
  FileFault write(const std::string& path, const std::string& bytes) override;
  FileFault overwrite(const std::string& path, const std::string& bytes, bool* begun) override;
  std::string target(const std::string& path) override;
  bool losesByReplacing(const std::string& path, const std::string& by) override;
  std::vector<std::string> beginningWith(const std::string& prefix) override;
  FileFault replace(const std::string& from, const std::string& to) override;
  FileFault move(const std::string& from, const std::string& to) override;
  void remove(const std::string& path) override;
};

}  // namespace workbench
