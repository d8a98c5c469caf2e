#include "addon/ide/header_recorder.h"

#include "addon/ide/open_file.h"

namespace kesto {

HeaderRecorder* headerRecorder = nullptr;

bool openAndRecord(const char* path) {
  if (!openFile(path)) {
    return false;
  }
  if (headerRecorder != nullptr) {
    headerRecorder->headerUsed(path, nullptr);
  }
  return true;
}

}  // namespace kesto
