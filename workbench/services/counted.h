// Reference counting of the objects that the IDE hands to add-ons, with a live
// count per kind, so that a forgotten release is found at exit. User-interface
// thread only: the counts are plain.
#pragma once

#include <windows.h>

#include <map>
#include <string>

#include "ideapi/ide_identifiers.h"
#include "ideapi/ide_interfaces.h"

namespace workbench {

// References that add-ons hold, by kind of object.
class LiveObjects {
 public:
  void change(const char* kind, long by) { counts_[kind] += by; }
  const std::map<std::string, long>& counts() const { return counts_; }

 private:
  std::map<std::string, long> counts_;
};

// What add-ons hold references of; each counts as live. Answers for its identifier
// and for IUnknown.
template <typename Interface>
class Counted : public Interface {
 public:
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    *result = nullptr;
    if (!IsEqualGUID(id, id_) && !IsEqualGUID(id, ideapi::kUnknown)) {
      return E_NOINTERFACE;
    }
    *result = static_cast<Interface*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override {
    live_.change(kind_, 1);
    return ++count_;
  }
  ULONG STDMETHODCALLTYPE Release() override {
    live_.change(kind_, -1);
    return --count_;
  }

 protected:
  Counted(LiveObjects& live, const char* kind, const GUID& id)
      : live_(live), kind_(kind), id_(id) {}
  ~Counted() = default;

 private:
  LiveObjects& live_;
  const char* kind_;
  GUID id_;
  ULONG count_ = 0;
};

// An object made for an add-on, deleted with its last reference. Starts with one
// reference, the receiver's.
template <typename Derived, typename Interface>
class Transient : public Counted<Interface> {
 public:
  Transient(LiveObjects& live, const char* kind)
      : Counted<Interface>(live, kind, ideapi::kUnknown) {
    Counted<Interface>::AddRef();
  }

  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = Counted<Interface>::Release();
    if (left == 0) {
      delete static_cast<Derived*>(this);
    }
    return left;
  }
};

// A service: it lives as long as the program and only counts who holds it.
template <typename Interface>
class Service : public Counted<Interface> {
 public:
  Service(LiveObjects& live, const char* kind, const GUID& id)
      : Counted<Interface>(live, kind, id) {}

 protected:
  ~Service() = default;
};

}  // namespace workbench
