// Reads whole files in as few steps as the system takes for it, into memory that was used
// before. One user, no locking.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace kesto::cli {

class DiskReader {
 public:
  // The bytes live until the next call. False, and errno set, when they cannot be read.
  bool read(const std::string& disk_path, std::string_view& bytes);

 private:
  std::unique_ptr<char[]> buffer_;
  std::size_t size_ = 0;
};

}  // namespace kesto::cli
