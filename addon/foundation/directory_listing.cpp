#include "addon/foundation/directory_listing.h"

#include <windows.h>

#include "addon/foundation/path.h"

namespace kesto {
namespace {

constexpr DWORD kVolumeLabel = 0x08;
// A junction, or under Wine a symbolic link. Windows 95's headers do not name it.
constexpr DWORD kReparsePoint = 0x400;

DirectoryEntries::Kind kindOf(DWORD attributes) {
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    return DirectoryEntries::Kind::kFile;
  }
  return (attributes & kReparsePoint) == 0 ? DirectoryEntries::Kind::kDirectory
                                           : DirectoryEntries::Kind::kLink;
}

}  // namespace

void DirectoryListing::list(const char* directory, const char* mask, DirectoryEntries& entries) {
  WIN32_FIND_DATAA found = {};
  const HANDLE search = FindFirstFileA(joinPath(directory, mask), &found);
  if (search == INVALID_HANDLE_VALUE) {
    return;
  }
  do {
    if ((found.dwFileAttributes & kVolumeLabel) == 0) {
      entries.add(kindOf(found.dwFileAttributes), found.cFileName, found.cAlternateFileName);
    }
  } while (FindNextFileA(search, &found) != FALSE);
  FindClose(search);
}

bool DirectoryListing::isFile(const char* path) {
  const DWORD attributes = GetFileAttributesA(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace kesto
