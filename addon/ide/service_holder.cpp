#include "addon/ide/service_holder.h"

namespace kesto {

EditorServiceHolder* editorServiceHolder = nullptr;
StatusLineServiceHolder* statusLineServiceHolder = nullptr;

IEditorService* editorService() {
  return editorServiceHolder != nullptr ? editorServiceHolder->get() : nullptr;
}

IStatusLineService* statusLineService() {
  return statusLineServiceHolder != nullptr ? statusLineServiceHolder->get() : nullptr;
}

}  // namespace kesto
