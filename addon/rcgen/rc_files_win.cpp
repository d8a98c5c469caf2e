#include "addon/rcgen/rc_files_win.h"

#include <windows.h>

#include "addon/foundation/text_file.h"

namespace kesto {

void RcFilesWin::list(const char* directory, const char* mask, DirectoryEntries& entries) {
  listing_.list(directory, mask, entries);
}

// Not by _stat, whose whole seconds would hide a script saved right after a make.
std::optional<RcFileStatus> RcFilesWin::status(const char* path) {
  WIN32_FIND_DATAA found = {};
  const HANDLE search = FindFirstFileA(path, &found);
  if (search == INVALID_HANDLE_VALUE) {
    return std::nullopt;
  }
  FindClose(search);
  const FILETIME& time = found.ftLastWriteTime;
  const auto high = static_cast<std::int64_t>(time.dwHighDateTime);
  return RcFileStatus{high << 32 | time.dwLowDateTime,
                      (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0};
}

bool RcFilesWin::read(const char* path, std::string& text) {
  return readTextFile(path, text);
}

bool RcFilesWin::write(const char* path, std::string_view text) {
  return writeTextFile(path, text);
}

bool RcFilesWin::append(const char* path, std::string_view text) {
  return appendTextFile(path, text);
}

void RcFilesWin::remove(const char* path) {
  DeleteFileA(path);
}

void RcFilesWin::rename(const char* path, const char* new_path) {
  MoveFileA(path, new_path);
}

}  // namespace kesto
