// The lifecycle of the add-on: what exists from the IDE's first call to its
// last, and in which order. User-interface thread only.
#pragma once

#include <windows.h>

#include "ideapi/ide_interfaces.h"

namespace kesto {

// Takes over the IDE's reference on its root interface.
void startAddon(IIde* ide);
void stopAddon();

// Called when the DLL is attached and detached. A false answer refuses the load.
bool attachModule(HINSTANCE instance);
void detachModule();

}  // namespace kesto
