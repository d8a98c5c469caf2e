// Clears what a test left in the registry.
#pragma once

#include <windows.h>

// A key and all below it; nothing where there is none.
inline void removeTree(HKEY parent, const char* name) {
  HKEY key = nullptr;
  if (RegOpenKeyA(parent, name, &key) == ERROR_SUCCESS) {
    char child[256];
    while (RegEnumKeyA(key, 0, child, sizeof child) == ERROR_SUCCESS) {
      removeTree(key, child);
    }
    RegCloseKey(key);
    RegDeleteKeyA(parent, name);
  }
}
