// Registration of the add-on's make client with the IDE, which shares
// the client's ownership meanwhile. User-interface thread only.
#pragma once

#include "ideapi/ide_interfaces.h"

namespace kesto {

// Creates the client, with its first reference, or returns null.
using MakeClientFactory = IMakeClient* (*)();

// Obtains the make service and hands it the client. A service or client that
// cannot be had is told in a box; then nothing is registered. A client that is
// registered already stays.
void registerMakeClient(MakeClientFactory create);
// Takes the client back and releases it and the service; without one nothing happens.
void unregisterMakeClient();

}  // namespace kesto
