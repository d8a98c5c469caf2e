// The files of this system as the features read and write them, with the same outcome byte
// for byte as on Windows: lines end with CR LF, and what may not be written by anybody is
// not replaced. One user, no locking.
#pragma once

#include "addon/foundation/file_system.h"
#include "cli/posix/disk_names.h"
#include "cli/posix/disk_reader.h"

namespace kesto::cli {

class DiskFiles : public FileSystem {
 public:
  // The names must outlive it.
  explicit DiskFiles(DiskNames& names) : names_(names) {}

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
  bool replace(const char* path, const char* new_path) override;
  void remove(const char* path) override;
  bool makeDirectory(const char* path) override;
  void removeDirectory(const char* path) override;

 private:
  bool holdsBytes(const std::string& disk_path, std::string_view text);
  bool put(const char* path, std::string_view text, const char* mode);
  bool move(const std::string& from, const std::string& to, bool only_new);

  DiskNames& names_;
  DiskReader reader_;
};

}  // namespace kesto::cli
