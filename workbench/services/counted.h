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

// An object made for an add-on, deleted with its last reference. Starts with one
// reference, the receiver's. Each reference counts as live.
template <typename Derived, typename Interface>
class Transient : public Interface {
 public:
  Transient(LiveObjects& live, const char* kind) : live_(live), kind_(kind) {
    live_.change(kind_, 1);
  }
  Transient(const Transient&) = delete;
  Transient& operator=(const Transient&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    *result = nullptr;
    if (!IsEqualGUID(id, ideapi::kUnknown)) {
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
    const ULONG left = --count_;
    if (left == 0) {
      delete static_cast<Derived*>(this);
    }
    return left;
  }

 private:
  LiveObjects& live_;
  const char* kind_;
  ULONG count_ = 1;
};

// A service: it lives as long as the program and only counts who holds it.
template <typename Interface>
class Service : public Interface {
 public:
  Service(LiveObjects& live, const char* kind, const GUID& id)
      : live_(live), kind_(kind), id_(id) {}
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

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
  ~Service() = default;

 private:
  LiveObjects& live_;
  const char* kind_;
  GUID id_;
  ULONG count_ = 0;
};

}  // namespace workbench
