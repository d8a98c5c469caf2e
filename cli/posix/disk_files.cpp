#include "cli/posix/disk_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "addon/foundation/binary_form.h"
#include "addon/foundation/text_file.h"

namespace kesto::cli {
namespace {

constexpr std::int64_t kNanoseconds = 1'000'000'000;
constexpr mode_t kAnyWriter = S_IWUSR | S_IWGRP | S_IWOTH;

}  // namespace

std::optional<FileStatus> DiskFiles::status(const char* path) {
  struct stat found = {};
  if (!names_.onDisk(path, [&found](const std::string& disk_path) {
        return stat(disk_path.c_str(), &found) == 0;
      })) {
    return std::nullopt;
  }
  return FileStatus{found.st_mtim.tv_sec * kNanoseconds + found.st_mtim.tv_nsec,
                    S_ISDIR(found.st_mode)};
}

bool DiskFiles::read(const char* path, std::string& text) {
  std::string_view bytes;
  const bool done = names_.onDisk(
      path, [&](const std::string& disk_path) { return reader_.read(disk_path, bytes); });
  text = bytes;
  takeTextMode(text);
  return done;
}

bool DiskFiles::holds(const char* path, std::string_view text) {
  return names_.onDisk(path,
                       [&](const std::string& disk_path) { return holdsBytes(disk_path, text); });
}

bool DiskFiles::holdsBytes(const std::string& disk_path, std::string_view text) {
  std::string_view bytes;
  if (!reader_.read(disk_path, bytes)) {
    return false;
  }
  errno = 0;
  return bytes.size() >= text.size() && bytes == withCarriageReturns(text);
}

bool DiskFiles::put(const char* path, std::string_view text, const char* mode) {
  const std::string disk_path = names_.find(path);
  FILE* const file = fopen(disk_path.c_str(), mode);
  if (file == nullptr) {
    return false;
  }
  names_.made(disk_path);
  const std::string bytes = withCarriageReturns(text);
  const bool written =
      fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && fflush(file) == 0;
  const int fault = errno;
  const bool closed = fclose(file) == 0;
  if (!written) {
    errno = fault;
  }
  return written && closed;
}

bool DiskFiles::write(const char* path, std::string_view text) {
  return put(path, text, "wb");
}

bool DiskFiles::append(const char* path, std::string_view text) {
  return put(path, text, "ab");
}

bool DiskFiles::writeRecord(const char* path, const Basic& record) {
  const std::string disk_path = names_.find(path);
  const bool written = writeRecordFile(disk_path.c_str(), record);
  names_.made(disk_path);
  return written;
}

bool DiskFiles::readRecord(const char* path, Basic& record) {
  return readRecordFile(names_.find(path).c_str(), record);
}

bool DiskFiles::flush(const char* path) {
  const int file = open(names_.find(path).c_str(), O_WRONLY | O_CLOEXEC);
  const bool flushed = file >= 0 && fsync(file) == 0;
  return file >= 0 && close(file) == 0 && flushed;
}

bool DiskFiles::copy(const char* path, const char* new_path) {
  const std::string from = names_.find(path);
  const std::string to = names_.find(new_path);
  std::error_code fault;
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, fault);
  struct stat found = {};
  if (fault || stat(from.c_str(), &found) != 0) {
    errno = fault ? fault.value() : errno;
    return false;
  }
  names_.made(to);
  const timespec times[] = {found.st_atim, found.st_mtim};
  return utimensat(AT_FDCWD, to.c_str(), times, 0) == 0;
}

bool DiskFiles::move(const std::string& from, const std::string& to, bool only_new) {
  int moved = -1;
  errno = EINVAL;
  if (only_new) {
    moved = renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
  }
  // Not every file system has that.
  struct stat found = {};
  if (moved != 0 && errno == EINVAL) {
    if (only_new && lstat(to.c_str(), &found) == 0) {
      errno = EEXIST;
      return false;
    }
    moved = ::rename(from.c_str(), to.c_str());
  }
  if (moved != 0) {
    return false;
  }
  names_.gone(from);
  names_.made(to);
  return true;
}

bool DiskFiles::rename(const char* path, const char* new_path) {
  const std::string to = names_.find(new_path);
  return names_.onDisk(path, [&](const std::string& from) { return move(from, to, true); });
}

bool DiskFiles::replace(const char* path, const char* new_path) {
  const std::string to = names_.find(new_path);
  struct stat found = {};
  if (stat(to.c_str(), &found) == 0 &&
      (S_ISDIR(found.st_mode) || (found.st_mode & kAnyWriter) == 0)) {
    errno = S_ISDIR(found.st_mode) ? EISDIR : EACCES;
    return false;
  }
  return names_.onDisk(path, [&](const std::string& from) { return move(from, to, false); });
}

void DiskFiles::remove(const char* path) {
  const std::string disk_path = names_.find(path);
  if (unlink(disk_path.c_str()) == 0) {
    names_.gone(disk_path);
  }
}

bool DiskFiles::makeDirectory(const char* path) {
  const std::string disk_path = names_.find(path);
  if (mkdir(disk_path.c_str(), 0777) != 0) {
    return false;
  }
  names_.made(disk_path);
  return true;
}

void DiskFiles::removeDirectory(const char* path) {
  const std::string disk_path = names_.find(path);
  if (rmdir(disk_path.c_str()) == 0) {
    names_.gone(disk_path);
  }
}

}  // namespace kesto::cli
