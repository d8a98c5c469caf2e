// The file system of this system, by paths as the add-on joins them.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "addon/foundation/binary_form.h"
#include "addon/foundation/file_system.h"
#include "addon/foundation/text_file.h"
#include "bench/posix_listing.h"

namespace kesto {

class PosixFiles : public FileSystem {
 public:
  std::optional<FileStatus> status(const char* path) override {
    struct stat found = {};
    if (stat(nativePath(path).c_str(), &found) != 0) {
      return std::nullopt;
    }
    return FileStatus{found.st_mtim.tv_sec * 1000000000LL + found.st_mtim.tv_nsec,
                      S_ISDIR(found.st_mode)};
  }
  bool read(const char* path, std::string& text) override {
    return readTextFile(nativePath(path).c_str(), text);
  }
  bool holds(const char* path, std::string_view text) override {
    return holdsText(nativePath(path).c_str(), text);
  }
  bool write(const char* path, std::string_view text) override {
    return writeTextFile(nativePath(path).c_str(), text);
  }
  bool writeRecord(const char* path, const Basic& record) override {
    return writeRecordFile(nativePath(path).c_str(), record);
  }
  bool readRecord(const char* path, Basic& record) override {
    return readRecordFile(nativePath(path).c_str(), record);
  }
  bool append(const char* path, std::string_view text) override {
    return appendTextFile(nativePath(path).c_str(), text);
  }
  bool flush(const char* path) override {
    const int file = open(nativePath(path).c_str(), O_WRONLY);
    const bool flushed = file >= 0 && fsync(file) == 0;
    return file >= 0 && close(file) == 0 && flushed;
  }
  bool copy(const char* path, const char* new_path) override {
    std::error_code fault;
    std::filesystem::copy_file(nativePath(path), nativePath(new_path),
                               std::filesystem::copy_options::overwrite_existing, fault);
    return !fault;
  }
  bool rename(const char* path, const char* new_path) override {
    return !status(new_path) && PosixFiles::replace(path, new_path);
  }
  bool replace(const char* path, const char* new_path) override {
    return ::rename(nativePath(path).c_str(), nativePath(new_path).c_str()) == 0;
  }
  void remove(const char* path) override { unlink(nativePath(path).c_str()); }
  bool makeDirectory(const char* path) override {
    return mkdir(nativePath(path).c_str(), 0777) == 0;
  }
  void removeDirectory(const char* path) override { rmdir(nativePath(path).c_str()); }
};

}  // namespace kesto
