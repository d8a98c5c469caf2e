#include "workbench/windows/wine.h"

#include <windows.h>

namespace workbench {

bool isOnWine() {
  static const bool on_wine =
      GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
  return on_wine;
}

}  // namespace workbench
