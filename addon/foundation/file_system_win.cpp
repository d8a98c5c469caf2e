#include "addon/foundation/file_system_win.h"

#include <windows.h>

#include "addon/foundation/binary_form.h"
#include "addon/foundation/file_details_win.h"
#include "addon/foundation/safe_write.h"
#include "addon/foundation/text_file.h"

namespace kesto {

namespace {

constexpr DWORD kNoAttributes = 0xFFFFFFFF;
constexpr DWORD kReplaceExisting = 1;

// Windows NT alone has it: Windows 95 misses it or answers that it is not there.
using MoveFileEx = BOOL(WINAPI*)(LPCSTR, LPCSTR, DWORD);

MoveFileEx moveFileEx() {
  return reinterpret_cast<MoveFileEx>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("KERNEL32.DLL"), "MoveFileExA")));
}

// Not every system asks this before it replaces a file.
bool mayBeReplaced(const char* path) {
  const DWORD attributes = GetFileAttributesA(path);
  return attributes == kNoAttributes ||
         (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

}  // namespace

// Not by _stat, whose whole seconds would hide a script saved right after a make.
std::optional<FileStatus> FileSystemWin::status(const char* path) {
  const std::optional<FileDetails> details = fileDetails(path);
  return details ? std::optional(FileStatus{details->modified, details->directory}) : std::nullopt;
}

bool FileSystemWin::read(const char* path, std::string& text) {
  return readTextFile(path, text);
}

bool FileSystemWin::holds(const char* path, std::string_view text) {
  return holdsText(path, text);
}

bool FileSystemWin::write(const char* path, std::string_view text) {
  return writeTextFile(path, text);
}

bool FileSystemWin::writeRecord(const char* path, const Basic& record) {
  return writeRecordFile(path, record);
}

bool FileSystemWin::readRecord(const char* path, Basic& record) {
  return readRecordFile(path, record);
}

bool FileSystemWin::append(const char* path, std::string_view text) {
  return appendTextFile(path, text);
}

bool FileSystemWin::flush(const char* path) {
  const HANDLE file = CreateFileA(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    return false;
  }
  const bool flushed = FlushFileBuffers(file) != FALSE;
  CloseHandle(file);
  return flushed;
}

// The copy of a file that may not be written could not be removed.
bool FileSystemWin::copy(const char* path, const char* new_path) {
  return CopyFileA(path, new_path, FALSE) != FALSE &&
         SetFileAttributesA(new_path, FILE_ATTRIBUTE_NORMAL) != FALSE;
}

bool FileSystemWin::rename(const char* path, const char* new_path) {
  return MoveFileA(path, new_path) != FALSE;
}

bool FileSystemWin::replace(const char* path, const char* new_path) {
  if (!mayBeReplaced(new_path)) {
    return false;
  }
  const MoveFileEx move = moveFileEx();
  if (move != nullptr && move(path, new_path, kReplaceExisting) != FALSE) {
    return true;
  }
  const bool missing = move == nullptr || GetLastError() == ERROR_CALL_NOT_IMPLEMENTED;
  return missing && replaceInSteps(*this, path, new_path);
}

void FileSystemWin::remove(const char* path) {
  DeleteFileA(path);
}

bool FileSystemWin::makeDirectory(const char* path) {
  return CreateDirectoryA(path, nullptr) != FALSE;
}

void FileSystemWin::removeDirectory(const char* path) {
  RemoveDirectoryA(path);
}

}  // namespace kesto
