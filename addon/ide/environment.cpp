#include "addon/ide/environment.h"

#include <cstdio>

namespace kesto {

AddonEnvironment* addonEnvironment = nullptr;

void describeSystem(AddonEnvironment& environment, DWORD platform, DWORD major, DWORD minor) {
  environment.new_shell = FALSE;
  const char* format = nullptr;
  switch (platform) {
    case VER_PLATFORM_WIN32s:
      format = "Win32s on Windows %d.%d";
      break;
    case VER_PLATFORM_WIN32_WINDOWS:
      format = "Windows 95 (%d.%d)";
      environment.new_shell = TRUE;
      break;
    case VER_PLATFORM_WIN32_NT:
      format = "Windows NT %d.%d";
      environment.new_shell = major > 3;
      break;
    default:
      return;
  }
  _snprintf(environment.os_description, sizeof environment.os_description - 1, format,
            static_cast<int>(major), static_cast<int>(minor));
}

void probeEnvironment(AddonEnvironment& environment) {
  OSVERSIONINFOA version = {};
  version.dwOSVersionInfoSize = sizeof version;
  static_assert(sizeof version == 148);
  GetVersionExA(&version);
  describeSystem(environment, version.dwPlatformId, version.dwMajorVersion, version.dwMinorVersion);
}

}  // namespace kesto
