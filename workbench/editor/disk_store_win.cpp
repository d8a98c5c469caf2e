#include "workbench/editor/disk_store_win.h"

#include <windows.h>

#include <algorithm>
#include <string_view>

#include "workbench/editor/unix_mode.h"
#include "workbench/windows/handles.h"
#include "workbench/windows/path_text.h"
#include "workbench/windows/wine.h"

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

FileFault writeBytes(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1u << 20));
    if (WriteFile(file, bytes.data(), wanted, &count, nullptr) == 0) {
      return lastFault();
    }
    if (count == 0) {
      return FileFault::kDiskFull;
    }
    bytes.remove_prefix(count);
  }
  return FileFault::kNone;
}

template <typename Call>
Call lateBound(const char* name) {
  return reinterpret_cast<Call>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), name)));
}

// The path without links and short names; empty where the system cannot tell, or not
// in the code page.
std::string finalPath(const std::string& path) {
  using FinalPathCall = DWORD(WINAPI*)(HANDLE, LPWSTR, DWORD, DWORD);
  const auto final_path = lateBound<FinalPathCall>("GetFinalPathNameByHandleW");
  const OwnedFile file = openFile(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
  wchar_t wide[1024];
  const DWORD size =
      file && final_path != nullptr ? final_path(file.get(), wide, 1024, 0) : DWORD{0};
  char ansi[2048];
  const int length = size < 1024 ? WideCharToMultiByte(CP_ACP, 0, wide, static_cast<int>(size),
                                                       ansi, sizeof ansi, nullptr, nullptr)
                                 : 0;
  const std::string_view result(ansi, static_cast<std::size_t>(length));
  const std::string_view local = "\\\\?\\";
  const std::string_view share = "\\\\?\\UNC\\";
  if (result.starts_with(share)) {
    return "\\\\" + std::string(result.substr(share.size()));
  }
  return std::string(result.starts_with(local) ? result.substr(local.size()) : result);
}

std::uint64_t fileIndex(const std::string& path) {
  const OwnedFile file = openFile(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
  BY_HANDLE_FILE_INFORMATION info = {};
  if (!file || GetFileInformationByHandle(file.get(), &info) == 0) {
    return 0;
  }
  return (std::uint64_t{info.nFileIndexHigh} << 32) | info.nFileIndexLow;
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
  const FileFault fault = writeBytes(file.get(), bytes);
  if (fault != FileFault::kNone) {
    return fault;
  }
  return FlushFileBuffers(file.get()) != 0 ? FileFault::kNone : lastFault();
}

FileFault DiskStore::overwrite(const std::string& path, const std::string& bytes, bool* begun) {
  *begun = false;
  const OwnedFile file = openFile(path, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
  const DWORD old_size = file ? GetFileSize(file.get(), nullptr) : INVALID_FILE_SIZE;
  if (!file || old_size == INVALID_FILE_SIZE) {
    return lastFault();
  }
  // What takes new room goes first: without room the file is as it was.
  const auto kept = std::min<std::size_t>(old_size, bytes.size());
  const std::string_view text = bytes;
  SetFilePointer(file.get(), static_cast<LONG>(kept), nullptr, FILE_BEGIN);
  FileFault fault = writeBytes(file.get(), text.substr(kept));
  if (fault != FileFault::kNone) {
    SetFilePointer(file.get(), static_cast<LONG>(old_size), nullptr, FILE_BEGIN);
    *begun = SetEndOfFile(file.get()) == 0;
    return fault;
  }
  *begun = true;
  SetFilePointer(file.get(), 0, nullptr, FILE_BEGIN);
  fault = writeBytes(file.get(), text.substr(0, kept));
  SetFilePointer(file.get(), static_cast<LONG>(bytes.size()), nullptr, FILE_BEGIN);
  if (fault != FileFault::kNone || SetEndOfFile(file.get()) == 0 ||
      FlushFileBuffers(file.get()) == 0) {
    return fault != FileFault::kNone ? fault : lastFault();
  }
  return FileFault::kNone;
}

std::string DiskStore::target(const std::string& path) {
  const std::string last = finalPath(path);
  // Only what leads to the same file by this name is of use.
  const std::uint64_t index = last.empty() ? 0 : fileIndex(last);
  return index != 0 && index == fileIndex(path) ? last : path;
}

bool DiskStore::losesByReplacing(const std::string& path, const std::string& by) {
  const OwnedFile file = openFile(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
  BY_HANDLE_FILE_INFORMATION info = {};
  if (!file || GetFileInformationByHandle(file.get(), &info) == 0) {
    return false;
  }
  // The last name differs when this one is short.
  const std::string last = finalPath(path);
  return info.nNumberOfLinks > 1 || (!last.empty() && !samePath(fileName(last), fileName(path))) ||
         (isOnWine() && !takeMode(by, path));
}

std::vector<std::string> DiskStore::beginningWith(const std::string& prefix) {
  std::vector<std::string> result;
  WIN32_FIND_DATAA data = {};
  HANDLE found = FindFirstFileA((prefix + "*").c_str(), &data);
  if (found == INVALID_HANDLE_VALUE) {
    return result;
  }
  const OwnedFind find(found);
  const std::string wanted = foldCase(fileName(prefix));
  do {
    // A short name may have been what fitted.
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
        foldCase(data.cFileName).starts_with(wanted)) {
      result.push_back(joinPath(folderOf(prefix), data.cFileName));
    }
  } while (FindNextFileA(found, &data) != 0);
  std::sort(result.begin(), result.end());
  return result;
}

FileFault DiskStore::replace(const std::string& from, const std::string& to) {
  using ReplaceCall = BOOL(WINAPI*)(LPCSTR, LPCSTR, LPCSTR, DWORD, LPVOID, LPVOID);
  // Newer systems have a call that keeps what belongs to the old file; Wine's takes two steps.
  const auto replace_file = lateBound<ReplaceCall>("ReplaceFileA");
  const DWORD attributes = GetFileAttributesA(to.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && replace_file != nullptr && !isOnWine() &&
      replace_file(to.c_str(), from.c_str(), nullptr, 0, nullptr, nullptr) != 0) {
    return FileFault::kNone;
  }
  if (attributes != INVALID_FILE_ATTRIBUTES) {
    SetFileAttributesA(from.c_str(), attributes);
  }
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
