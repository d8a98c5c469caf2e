// What the system and the IDE call in the module.
#include "addon/addon.h"

extern "C" {

// The IDE's root interface starts the add-on, 0 shuts it down.
void __cdecl BcwAddOnEntry(int ide) {
  if (ide != 0) {
    kesto::startAddon(reinterpret_cast<IIde*>(ide));
  } else {
    kesto::stopAddon();
  }
}

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  switch (reason) {
    case DLL_PROCESS_ATTACH:
      return kesto::attachModule(instance) ? TRUE : FALSE;
    case DLL_PROCESS_DETACH:
      kesto::detachModule();
      return TRUE;
    default:
      return TRUE;
  }
}
}
