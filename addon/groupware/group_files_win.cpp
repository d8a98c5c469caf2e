#include "addon/groupware/group_files_win.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <memory>

#include "addon/foundation/file_system_win.h"
#include "addon/foundation/path.h"
#include "addon/foundation/safe_write.h"

namespace kesto {
namespace {

constexpr DWORD kVolumeLabel = 0x08;
// A junction, or under Wine a symbolic link. Windows 95's headers do not name it.
constexpr DWORD kReparsePoint = 0x400;
constexpr DWORD kNoAttributes = 0xFFFFFFFF;
constexpr std::size_t kPiece = 65536;
constexpr int kHalf = 32;  // bits of half a time or size

struct CloseFile {
  void operator()(FILE* file) const { fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

DirectoryEntries::Kind kindOf(DWORD attributes) {
  using Kind = DirectoryEntries::Kind;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    return Kind::kFile;
  }
  return (attributes & kReparsePoint) == 0 ? Kind::kDirectory : Kind::kLink;
}

std::int64_t joined(DWORD high, DWORD low) {
  return static_cast<std::int64_t>(high) << kHalf | low;
}

FileFacts factsOf(const WIN32_FIND_DATAA& found) {
  const FILETIME& time = found.ftLastWriteTime;
  const DWORD attributes = found.dwFileAttributes;
  return {
      joined(time.dwHighDateTime, time.dwLowDateTime),
      joined(found.nFileSizeHigh, found.nFileSizeLow),
      (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 || (attributes & FILE_ATTRIBUTE_READONLY) == 0};
}

// Ahead of its place, so that a copy that fails costs nothing.
template <class Put>
bool copyThen(const char* path, const char* new_path, const Put& put) {
  FileSystemWin files;
  const String grown = newTextPath(new_path);
  if (files.copy(path, grown) && files.flush(grown) && put(files, grown.text())) {
    return true;
  }
  files.remove(grown);
  return false;
}

}  // namespace

void GroupFilesWin::list(const char* directory, const char* mask, FileListener& listener) {
  WIN32_FIND_DATAA data = {};
  const HANDLE search = FindFirstFileA(joinPath(directory, mask), &data);
  if (search == INVALID_HANDLE_VALUE) {
    return;
  }
  do {
    if ((data.dwFileAttributes & kVolumeLabel) == 0 && strchr(data.cFileName, '?') == nullptr) {
      listener.add(kindOf(data.dwFileAttributes), data.cFileName, data.cAlternateFileName,
                   factsOf(data));
    }
  } while (FindNextFileA(search, &data) != FALSE);
  FindClose(search);
}

std::optional<FileFacts> GroupFilesWin::facts(const char* path) {
  WIN32_FIND_DATAA data = {};
  const HANDLE search = FindFirstFileA(path, &data);
  if (search == INVALID_HANDLE_VALUE) {
    return std::nullopt;
  }
  FindClose(search);
  return factsOf(data);
}

// The root of a drive takes its "\".
bool GroupFilesWin::isDirectory(const char* path) {
  const DWORD attributes = GetFileAttributesA((std::string(path) + '\\').c_str());
  return attributes != kNoAttributes && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool GroupFilesWin::holdsAnything(const char* directory) {
  WIN32_FIND_DATAA data = {};
  const HANDLE search = FindFirstFileA(joinPath(directory, "*"), &data);
  if (search == INVALID_HANDLE_VALUE) {
    return false;
  }
  bool found = false;
  do {
    found = strcmp(data.cFileName, ".") != 0 && strcmp(data.cFileName, "..") != 0;
  } while (!found && FindNextFileA(search, &data) != FALSE);
  FindClose(search);
  return found;
}

bool GroupFilesWin::makeDirectory(const char* path) {
  return CreateDirectoryA(path, nullptr) != FALSE;
}

bool GroupFilesWin::setWritable(const char* path, bool writable) {
  const DWORD attributes = GetFileAttributesA(path);
  const DWORD wanted = writable ? attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY)
                                : attributes | FILE_ATTRIBUTE_READONLY;
  return attributes != kNoAttributes &&
         (wanted == attributes || SetFileAttributesA(path, wanted) != FALSE);
}

bool GroupFilesWin::copy(const char* path, const char* new_path) {
  return copyThen(path, new_path, [new_path](FileSystemWin& files, const char* grown) {
    return files.replace(grown, new_path);
  });
}

bool GroupFilesWin::copyAside(const char* path, const char* new_path) {
  return copyThen(path, new_path, [new_path](FileSystemWin& files, const char* grown) {
    return files.rename(grown, new_path);
  });
}

bool GroupFilesWin::sameText(const char* path, const char* other_path) {
  const File left(fopen(path, "rb"));
  const File right(fopen(other_path, "rb"));
  if (left == nullptr || right == nullptr) {
    return false;
  }
  const auto pieces = std::make_unique<char[]>(2 * kPiece);
  char* const other_piece = pieces.get() + kPiece;
  for (;;) {
    const std::size_t size = fread(pieces.get(), 1, kPiece, left.get());
    if (fread(other_piece, 1, kPiece, right.get()) != size ||
        memcmp(pieces.get(), other_piece, size) != 0) {
      return false;
    }
    if (size < kPiece) {
      return ferror(left.get()) == 0 && ferror(right.get()) == 0;
    }
  }
}

bool GroupFilesWin::rename(const char* path, const char* new_path) {
  return MoveFileA(path, new_path) != FALSE;
}

bool GroupFilesWin::writeText(const char* path, const std::string& text) {
  return FileSystemWin().write(path, text);
}

}  // namespace kesto
