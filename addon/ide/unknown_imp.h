// The reference counting of the interfaces that the add-on implements. The
// count is a plain integer: the IDE calls on its user-interface thread only.
#pragma once

#include "ideapi/ide_identifiers.h"
#include "ideapi/ide_interfaces.h"

namespace kesto {

// An object starts with one reference, its creator's, and deletes itself with
// the last one. It answers for IUnknown and for the identifier it was given.
template <class T>
class IUnknownImp : public T {
 public:
  explicit IUnknownImp(const GUID& id = ideapi::kUnknown) : id_(id) {}
  IUnknownImp(const IUnknownImp&) = delete;
  IUnknownImp& operator=(const IUnknownImp&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    if (IsEqualGUID(id, id_) || IsEqualGUID(id, ideapi::kUnknown)) {
      *result = static_cast<T*>(this);
      AddRef();
      return S_OK;
    }
    *result = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) {
      delete this;
    }
    return left;
  }

 protected:
  virtual ~IUnknownImp() = default;

 private:
  GUID id_;
  ULONG references_ = 1;
};

}  // namespace kesto
