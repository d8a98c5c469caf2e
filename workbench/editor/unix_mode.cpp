#include "workbench/editor/unix_mode.h"

#include <windows.h>

#include <cstdint>
#include <cstring>

#include "workbench/windows/wine.h"

namespace workbench {
namespace {

// A program under Wine is a process of Linux, and may ask its kernel directly.
constexpr int kChmod = 15;
constexpr int kStat = 195;
constexpr std::size_t kModeInStatus = 16;
constexpr std::size_t kStatusSize = 256;  // more than the kernel writes
constexpr std::uint32_t kPermissions = 07777;

int askKernel(int call, const char* path, const void* argument) {
  int result = 0;
  asm volatile("int $0x80" : "=a"(result) : "a"(call), "b"(path), "c"(argument) : "memory", "cc");
  return result;
}

// The path as the system below knows it; empty when it cannot be told.
std::string unixPath(const std::string& path) {
  using UnixNameCall = char*(CDECL*)(LPCWSTR);
  const auto unix_name = reinterpret_cast<UnixNameCall>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
  wchar_t wide[1024];
  if (unix_name == nullptr || MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide, 1024) == 0) {
    return {};
  }
  char* name = unix_name(wide);
  const std::string result = name != nullptr ? name : "";
  HeapFree(GetProcessHeap(), 0, name);
  return result;
}

bool readMode(const std::string& unix_path, std::uint32_t* mode) {
  char status[kStatusSize] = {};
  if (unix_path.empty() || askKernel(kStat, unix_path.c_str(), status) != 0) {
    return false;
  }
  memcpy(mode, status + kModeInStatus, sizeof *mode);
  *mode &= kPermissions;
  return true;
}

}  // namespace

bool takeMode(const std::string& path, const std::string& other) {
  if (!isOnWine()) {
    return false;
  }
  const std::string file = unixPath(path);
  std::uint32_t wanted = 0;
  std::uint32_t mode = 0;
  return readMode(unixPath(other), &wanted) && readMode(file, &mode) &&
         (mode == wanted ||
          askKernel(kChmod, file.c_str(), reinterpret_cast<const void*>(wanted)) == 0) &&
         readMode(file, &mode) && mode == wanted;
}

}  // namespace workbench
