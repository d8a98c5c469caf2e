#include "addon/ide/service_holder.h"

namespace kesto {

EditorServiceHolder* editorServiceHolder = nullptr;
StatusLineServiceHolder* statusLineServiceHolder = nullptr;

ComPtr<IEditorService> editorService() {
  IEditorService* service = editorServiceHolder != nullptr ? editorServiceHolder->get() : nullptr;
  if (service != nullptr) {
    service->AddRef();
  }
  return ComPtr<IEditorService>(service);
}

IStatusLineService* statusLineService() {
  return statusLineServiceHolder != nullptr ? statusLineServiceHolder->get() : nullptr;
}

}  // namespace kesto
