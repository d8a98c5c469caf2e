#include "workbench/app/own_addon.h"

#include <windows.h>

namespace workbench {
namespace {

constexpr char kModule[] = "Kestoaob.dll";
constexpr char kKey[] = "SOFTWARE\\Borland\\Borland C++\\5.0\\Ide\\AddOns\\Kestoaob";
constexpr char kPath[] = "Path";

bool isFile(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != 0xFFFFFFFFu && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::string besideProgram() {
  char program[MAX_PATH] = {};
  const DWORD length = GetModuleFileNameA(nullptr, program, sizeof program - 1);
  std::string path(program, length);
  return path.erase(path.rfind('\\') + 1) + kModule;
}

std::string registered() {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return std::string();
  }
  char path[MAX_PATH + 1] = {};
  DWORD size = sizeof path - 1;
  DWORD type = 0;
  const bool read = RegQueryValueExA(key, kPath, nullptr, &type, reinterpret_cast<BYTE*>(path),
                                     &size) == ERROR_SUCCESS &&
                    type == REG_SZ;
  RegCloseKey(key);
  return read ? std::string(path) : std::string();
}

}  // namespace

std::string ownAddon() {
  for (const std::string& path : {besideProgram(), registered()}) {
    if (!path.empty() && isFile(path)) {
      return path;
    }
  }
  return std::string();
}

}  // namespace workbench
