// What the add-on knows of the module and the system it runs in. Owned by
// the lifecycle, filled before any other thread exists and constant from then on.
#pragma once

#include <windows.h>

namespace kesto {

struct AddonEnvironment {
  HINSTANCE instance = nullptr;
  // "Windows 95 (4.0)" and the like, for the user to read; empty on an unknown platform.
  char os_description[40] = "";
  // TRUE where the Windows 95 window styles exist: Windows 95, and NT from 4.0 on.
  BOOL new_shell = FALSE;
};

// Exists while the DLL is attached.
extern AddonEnvironment* addonEnvironment;

// Fills the description and the new-shell flag from the running system.
void probeEnvironment(AddonEnvironment& environment);
// The same from a version record (platform id as of VER_PLATFORM_...).
void describeSystem(AddonEnvironment& environment, DWORD platform, DWORD major, DWORD minor);

}  // namespace kesto
