#include "workbench/project/disk_lister_win.h"

#include <windows.h>

#include "workbench/windows/handles.h"
#include "workbench/windows/path_text.h"

namespace workbench {

bool DiskLister::list(const std::string& folder, std::vector<FolderEntry>* entries) {
  WIN32_FIND_DATAA data = {};
  HANDLE found = FindFirstFileA(joinPath(folder, "*").c_str(), &data);
  if (found == INVALID_HANDLE_VALUE) {
    return false;
  }
  const OwnedFind find(found);
  do {
    FolderEntry entry;
    entry.name = data.cFileName;
    entry.folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    entry.hidden = (data.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (entry.name != "." && entry.name != "..") {
      entries->push_back(std::move(entry));
    }
  } while (FindNextFileA(found, &data) != 0);
  return true;
}

std::uint64_t DiskLister::identity(const std::string& folder) {
  // Windows 95 cannot open folders; the limit of the depth guards there.
  HANDLE handle = CreateFileA(folder.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return 0;
  }
  const OwnedFile file(handle);
  BY_HANDLE_FILE_INFORMATION info = {};
  if (GetFileInformationByHandle(handle, &info) == 0) {
    return 0;
  }
  const std::uint64_t index = (std::uint64_t{info.nFileIndexHigh} << 32) | info.nFileIndexLow;
  return index ^ (std::uint64_t{info.dwVolumeSerialNumber} << 40);
}

}  // namespace workbench
