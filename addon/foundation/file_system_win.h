// The file system of Windows. Holds nothing but what the system offers; any thread.
#pragma once

#include "addon/foundation/file_system.h"

namespace kesto {

class FileSystemWin : public FileSystem {
 public:
  std::optional<FileStatus> status(const char* path) override;
  bool read(const char* path, std::string& text) override;
  bool holds(const char* path, std::string_view text) override;
  bool write(const char* path, std::string_view text) override;
  bool writeRecord(const char* path, const Basic& record) override;
  bool readRecord(const char* path, Basic& record) override;
  bool append(const char* path, std::string_view text) override;
  bool flush(const char* path) override;
  bool copy(const char* path, const char* new_path) override;
  bool rename(const char* path, const char* new_path) override;
  // At once where the system can, else in steps.
  bool replace(const char* path, const char* new_path) override;
  void remove(const char* path) override;
  bool makeDirectory(const char* path) override;
  void removeDirectory(const char* path) override;
};

}  // namespace kesto
