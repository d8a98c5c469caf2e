#include "addon/foundation/full_path.h"

#include <windows.h>

namespace kesto {

std::string fullPath(std::string_view path) {
  const std::string given(path);
  char full[1024] = "";
  const DWORD length = GetFullPathNameA(given.c_str(), sizeof full, full, nullptr);
  return length > 0 && length < sizeof full ? std::string(full, length) : given;
}

}  // namespace kesto
