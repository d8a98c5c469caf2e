#include "addon/ide/open_file_name.h"

#include <winternl.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "addon/foundation/path.h"

namespace kesto {
namespace {

// What follows is Windows NT's own, which has it since its first version; Windows 95 has not.
using SetInformation = NTSTATUS(NTAPI*)(HANDLE, IO_STATUS_BLOCK*, void*, ULONG, int);
constexpr int kRenameInformation = 10;

struct RenameInformation {
  BOOLEAN replace;
  HANDLE root;
  ULONG length;  // of the name, in bytes
  WCHAR name[kPathLimit + 16];
};

SetInformation setInformation() {
  static const auto function = reinterpret_cast<SetInformation>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("NTDLL.DLL"), "NtSetInformationFile")));
  return function;
}

// As the system's core names it.
std::string coreName(const std::string& full) {
  return full.starts_with("\\\\") ? "\\??\\UNC" + full.substr(1) : "\\??\\" + full;
}

}  // namespace

DWORD renamingAccess() {
  return setInformation() != nullptr ? DELETE : 0;
}

bool renameOpenFile(HANDLE file, const char* new_path, bool replace) {
  if (setInformation() == nullptr) {
    return false;
  }
  const std::string name = coreName(new_path);
  RenameInformation information = {};
  information.replace = replace ? TRUE : FALSE;
  const int length =
      MultiByteToWideChar(CP_ACP, 0, name.data(), static_cast<int>(name.size()), information.name,
                          static_cast<int>(std::size(information.name)));
  information.length = static_cast<ULONG>(length) * sizeof(WCHAR);
  IO_STATUS_BLOCK outcome = {};
  return length > 0 && setInformation()(file, &outcome, &information,
                                        offsetof(RenameInformation, name) + information.length,
                                        kRenameInformation) >= 0;
}

}  // namespace kesto
