// A file's bytes as the IDE sees them: an editor's text goes before the disk. A
// file is read piece by piece, so its size does not matter. User-interface thread
// only.
#pragma once

#include <string>

#include "workbench/services/counted.h"
#include "workbench/services/service_context.h"
#include "workbench/windows/handles.h"

namespace workbench {

class FileStream final : public Transient<FileStream, IFileStream> {
 public:
  explicit FileStream(const ServiceContext& context);

  int STDMETHODCALLTYPE Open(IIdeString* file, int mode) override;
  int STDMETHODCALLTYPE GetState() override;
  long STDMETHODCALLTYPE Seek(long offset, int origin) override;
  long STDMETHODCALLTYPE Read(void* buffer, long count) override;
  void STDMETHODCALLTYPE Close() override;

 private:
  ServiceContext context_;
  std::string name_;  // last asked for
  bool open_ = false;
  OwnedFile disk_;      // null while the bytes are an editor's
  long disk_at_ = 0;    // where the file's own position stands, -1 when unknown
  std::string buffer_;  // the editor's text when it was opened
  long size_ = 0;       // bytes
  long position_ = 0;
};

}  // namespace workbench
