#include "addon/ide/header_recorder.h"

#include "addon/foundation/full_path.h"
#include "addon/ide/open_file.h"

namespace kesto {

HeaderRecorder* headerRecorder = nullptr;

bool openAndRecord(const char* path) {
  if (!openFile(path)) {
    return false;
  }
  if (headerRecorder != nullptr) {
    // The editor that shows it now is no reason not to record it.
    headerRecorder->headerUsed(path, findEditorOf(fullPath(path)));
  }
  return true;
}

}  // namespace kesto
