#include "workbench/editor/disk_store_win.h"

#include <windows.h>

#include <algorithm>

#include "workbench/windows/handles.h"

namespace workbench {
namespace {

FileFault lastFault() {
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_INVALID_DRIVE:
      return FileFault::kMissing;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return FileFault::kDenied;
    case ERROR_WRITE_PROTECT:
      return FileFault::kReadOnly;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return FileFault::kDiskFull;
    default:
      return FileFault::kOther;
  }
}

OwnedFile openFile(const std::string& path, DWORD access, DWORD share, DWORD how) {
  HANDLE file =
      CreateFileA(path.c_str(), access, share, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
  return OwnedFile(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

}  // namespace

FileStamp DiskStore::stamp(const std::string& path) {
  WIN32_FIND_DATAA data = {};
  // A name with wildcards would find another file.
  if (path.find_first_of("*?") != std::string::npos) {
    return {};
  }
  HANDLE found = FindFirstFileA(path.c_str(), &data);
  if (found == INVALID_HANDLE_VALUE) {
    return {};
  }
  const OwnedFind find(found);
  FileStamp result;
  result.exists = true;
  result.read_only = (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
  result.size = (std::uint64_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
  result.time = (std::uint64_t{data.ftLastWriteTime.dwHighDateTime} << 32) |
                data.ftLastWriteTime.dwLowDateTime;
  return result;
}

FileFault DiskStore::read(const std::string& path, std::uint64_t limit, std::string* bytes) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    return lastFault();
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    return FileFault::kIsFolder;
  }
  const OwnedFile file =
      openFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
  if (!file) {
    return lastFault();
  }
  DWORD high = 0;
  const DWORD low = GetFileSize(file.get(), &high);
  const std::uint64_t size = (std::uint64_t{high} << 32) | low;
  if (size > limit) {
    return FileFault::kTooLarge;
  }
  std::string result(static_cast<std::size_t>(size), '\0');
  std::size_t done = 0;
  while (done < result.size()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(result.size() - done, 1u << 20));
    if (ReadFile(file.get(), &result[done], wanted, &count, nullptr) == 0) {
      return lastFault();
    }
    if (count == 0) {
      break;
    }
    done += count;
  }
  result.resize(done);
  *bytes = std::move(result);
  return FileFault::kNone;
}

FileFault DiskStore::write(const std::string& path, const std::string& bytes) {
  const OwnedFile file = openFile(path, GENERIC_WRITE, 0, CREATE_ALWAYS);
  if (!file) {
    return lastFault();
  }
  std::size_t done = 0;
  while (done < bytes.size()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size() - done, 1u << 20));
    if (WriteFile(file.get(), bytes.data() + done, wanted, &count, nullptr) == 0) {
      return lastFault();
    }
    if (count == 0) {
      return FileFault::kDiskFull;
    }
    done += count;
  }
  return FlushFileBuffers(file.get()) != 0 ? FileFault::kNone : lastFault();
}

FileFault DiskStore::replace(const std::string& from, const std::string& to) {
  if (MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
      0) {
    return FileFault::kNone;
  }
  return GetLastError() == ERROR_CALL_NOT_IMPLEMENTED ? FileFault::kNotOffered : lastFault();
}

FileFault DiskStore::move(const std::string& from, const std::string& to) {
  return MoveFileA(from.c_str(), to.c_str()) != 0 ? FileFault::kNone : lastFault();
}

void DiskStore::remove(const std::string& path) {
  DeleteFileA(path.c_str());
}

}  // namespace workbench
