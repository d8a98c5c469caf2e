#include "workbench/project/disk_lister_win.h"

#include <windows.h>

#include "workbench/windows/handles.h"
#include "workbench/windows/path_text.h"

namespace workbench {
namespace {

std::wstring wideText(const std::string& text) {
  std::wstring result(text.size(), L'\0');
  const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                       result.data(), static_cast<int>(result.size()));
  result.resize(static_cast<std::size_t>(size));
  return result;
}

// Empty for a name that the code page does not have.
std::string ansiName(const wchar_t* name) {
  char text[2 * MAX_PATH] = {};
  WideCharToMultiByte(CP_ACP, 0, name, -1, text, sizeof text, nullptr, nullptr);
  return wideText(text) == name ? text : std::string();
}

void add(const std::string& name, DWORD attributes, std::vector<FolderEntry>* entries) {
  if (!name.empty() && name != "." && name != "..") {
    entries->push_back({name, (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                        (attributes & FILE_ATTRIBUTE_HIDDEN) != 0});
  }
}

// Windows 95 has no wide calls.
bool listAnsi(const std::string& folder, std::vector<FolderEntry>* entries) {
  WIN32_FIND_DATAA data = {};
  HANDLE found = FindFirstFileA(joinPath(folder, "*").c_str(), &data);
  if (found == INVALID_HANDLE_VALUE) {
    return false;
  }
  const OwnedFind find(found);
  do {
    add(data.cFileName, data.dwFileAttributes, entries);
  } while (FindNextFileA(found, &data) != 0);
  return true;
}

}  // namespace

bool DiskLister::list(const std::string& folder, std::vector<FolderEntry>* entries) {
  WIN32_FIND_DATAW data = {};
  HANDLE found = FindFirstFileW(wideText(joinPath(folder, "*")).c_str(), &data);
  if (found == INVALID_HANDLE_VALUE && GetLastError() == ERROR_CALL_NOT_IMPLEMENTED) {
    return listAnsi(folder, entries);
  }
  if (found == INVALID_HANDLE_VALUE) {
    return false;
  }
  const OwnedFind find(found);
  do {
    // A name beyond the code page goes by its short name.
    const std::string name = ansiName(data.cFileName);
    add(name.empty() ? ansiName(data.cAlternateFileName) : name, data.dwFileAttributes, entries);
  } while (FindNextFileW(found, &data) != 0);
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
