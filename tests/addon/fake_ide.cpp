#include "tests/addon/fake_ide.h"

#include <algorithm>
#include <cstring>

namespace fake {

int live_references = 0;

int STDMETHODCALLTYPE Stream::Open(IIdeString*, int mode) {
  source_.modes.push_back(mode);
  position_ = 0;
  text_ = mode == kStreamFile ? source_.disk : source_.in_editor ? source_.buffer : source_.disk;
  return 1;
}

long STDMETHODCALLTYPE Stream::Seek(long offset, int origin) {
  position_ = offset + (origin == kStreamFromEnd ? static_cast<long>(text_.size()) : 0);
  return position_;
}

long STDMETHODCALLTYPE Stream::Read(void* buffer, long count) {
  if (source_.negative_reads > 0) {
    --source_.negative_reads;
    return -1;
  }
  const long left = std::min(count, static_cast<long>(text_.size()) - position_);
  memcpy(buffer, text_.data() + position_, static_cast<size_t>(left));
  position_ += left;
  return left;
}

Ide::Ide() {
  services = {{ideapi::kEditorService.Data1, &editor},
              {ideapi::kStatusLineService.Data1, &status_line},
              {ideapi::kMakeService.Data1, &make},
              {ideapi::kOptionsService.Data1, &options},
              {ideapi::kMessageService.Data1, &messages}};
}

HRESULT STDMETHODCALLTYPE Ide::QueryInterface(REFIID id, void** result) {
  const auto service = services.find(id.Data1);
  if (service == services.end() || !IsEqualGUID(id, ideapi::serviceId(id.Data1))) {
    // Callers must not use what a failed query leaves behind.
    *result = reinterpret_cast<void*>(1);
    return E_NOINTERFACE;
  }
  service->second->AddRef();
  *result = service->second;
  return S_OK;
}

}  // namespace fake
