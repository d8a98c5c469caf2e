#include "addon/ide/copy_files_win.h"

#include <windows.h>

#include <cstring>
#include <new>

#include "addon/foundation/file_details_win.h"
#include "addon/foundation/file_system_win.h"
#include "addon/foundation/full_path.h"
#include "addon/foundation/safe_write.h"
#include "addon/foundation/string.h"
#include "addon/ide/open_file_name.h"

namespace kesto {
namespace {

constexpr DWORD kNoAttributes = 0xFFFFFFFF;

class OwnedFile {
 public:
  explicit OwnedFile(HANDLE file) : file_(file) {}
  ~OwnedFile() { close(); }
  OwnedFile(const OwnedFile&) = delete;
  OwnedFile& operator=(const OwnedFile&) = delete;

  HANDLE get() const { return file_; }
  bool close() {
    const HANDLE file = file_;
    file_ = INVALID_HANDLE_VALUE;
    return file != INVALID_HANDLE_VALUE && CloseHandle(file) != FALSE;
  }

 private:
  HANDLE file_;
};

class SourceWin : public CopySource {
 public:
  explicit SourceWin(HANDLE file) : file_(file) {}

  std::int64_t modified() const override {
    FILETIME time = {};
    GetFileTime(file_.get(), nullptr, nullptr, &time);
    std::int64_t modified = 0;
    memcpy(&modified, &time, sizeof modified);
    return modified;
  }
  long read(char* bytes, std::size_t size) override {
    DWORD given = 0;
    return ReadFile(file_.get(), bytes, static_cast<DWORD>(size), &given, nullptr) != FALSE
               ? static_cast<long>(given)
               : -1;
  }

 private:
  OwnedFile file_;
};

class TargetWin : public CopyTarget {
 public:
  TargetWin(HANDLE file, const String& grown, const String& path)
      : file_(file), grown_(grown), path_(path) {}
  ~TargetWin() override {
    file_.close();
    if (!put_) {
      DeleteFileA(grown_);
    }
  }

  bool write(const char* bytes, std::size_t size) override {
    DWORD written = 0;
    return WriteFile(file_.get(), bytes, static_cast<DWORD>(size), &written, nullptr) != FALSE &&
           written == size;
  }
  void setModified(std::int64_t modified) override {
    FILETIME time = {};
    static_assert(sizeof time == sizeof modified);
    memcpy(&time, &modified, sizeof time);
    SetFileTime(file_.get(), nullptr, nullptr, &time);
  }
  bool put() override {
    put_ = renameOpen(false) || MoveFileA(grown_, path_) != FALSE;
    return put_;
  }
  bool replace() override {
    FileSystemWin files;
    put_ = renameOpen(true) || files.replace(grown_, path_);
    return put_;
  }

 private:
  bool renameOpen(bool replace) {
    const bool renamed = renameOpenFile(file_.get(), path_, replace);
    file_.close();
    return renamed;
  }

  OwnedFile file_;
  String grown_;
  String path_;
  bool put_ = false;
};

}  // namespace

bool CopyFilesWin::exists(const char* path) {
  return GetFileAttributesA(path) != kNoAttributes;
}

std::optional<std::uint64_t> CopyFilesWin::size(const char* path) {
  const std::optional<FileDetails> details = fileDetails(path);
  return details ? std::optional(details->size) : std::nullopt;
}

std::unique_ptr<CopySource> CopyFilesWin::open(const char* path) {
  const HANDLE file = CreateFileA(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  return std::unique_ptr<CopySource>(
      file != INVALID_HANDLE_VALUE ? new (std::nothrow) SourceWin(file) : nullptr);
}

CopyPlace CopyFilesWin::place(const char* path) {
  const DWORD attributes = GetFileAttributesA(path);
  if (attributes == kNoAttributes) {
    return CopyPlace::kVacant;
  }
  return (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0
             ? CopyPlace::kFile
             : CopyPlace::kTaken;
}

// A path is completed before its length is looked at.
std::unique_ptr<CopyTarget> CopyFilesWin::grow(const char* path) {
  const String whole(fullPath(path));
  const String grown = newTextPath(whole.view());
  const HANDLE file = CreateFileA(grown, GENERIC_WRITE | renamingAccess(), 0, nullptr,
                                  CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  return std::unique_ptr<CopyTarget>(
      file != INVALID_HANDLE_VALUE ? new (std::nothrow) TargetWin(file, grown, whole) : nullptr);
}

}  // namespace kesto
