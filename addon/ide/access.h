// Access to the IDE: the one root pointer, its services and its strings.
// User-interface thread only.
#pragma once

#include <memory>

#include "addon/ide/com_ptr.h"
#include "ideapi/ide_identifiers.h"
#include "ideapi/ide_interfaces.h"

namespace kesto {

// Keeps the root pointer, whose reference the IDE gave to the add-on, for the
// whole session.
void storeIde(IIde* ide);
// Releases it; without one nothing happens.
void releaseIde();
// A new reference on the root, empty when there is none.
ComPtr<IIde> acquireIde();

// Any service by its identifier; null when there is no IDE or it has none such.
// The caller releases it.
void* getServicePointer(const GUID& id);

template <class T>
ComPtr<T> getService(const GUID& id) {
  return ComPtr<T>(static_cast<T*>(getServicePointer(id)));
}

// A string object holding the text; empty when there is no IDE or no memory.
ComPtr<IIdeString> makeIdeString(const char* text);
// The text of a string object in an array of its length + 1, and the object's
// reference gone. Null when the object or its text is.
std::unique_ptr<char[]> takeIdeString(IIdeString* string);

}  // namespace kesto
