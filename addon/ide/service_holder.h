// A service kept for the whole session: obtained at construction, released at
// destruction, null when the IDE does not offer it. User-interface thread only.
#pragma once

#include "addon/ide/access.h"

namespace kesto {

template <class T>
class ServiceHolder {
 public:
  explicit ServiceHolder(const GUID& id) : service_(getService<T>(id)) {}
  T* get() const { return service_.get(); }

 private:
  ComPtr<T> service_;
};

class EditorServiceHolder : public ServiceHolder<IEditorService> {
 public:
  EditorServiceHolder() : ServiceHolder(ideapi::kEditorService) {}
};

class StatusLineServiceHolder : public ServiceHolder<IStatusLineService> {
 public:
  StatusLineServiceHolder() : ServiceHolder(ideapi::kStatusLineService) {}
};

// The lifecycle fills and clears these slots; null outside a session.
extern EditorServiceHolder* editorServiceHolder;
extern StatusLineServiceHolder* statusLineServiceHolder;

// The held service, or null. The editor service comes with a reference of its own: within
// a call the IDE may ask its user something, and close.
ComPtr<IEditorService> editorService();
IStatusLineService* statusLineService();

}  // namespace kesto
