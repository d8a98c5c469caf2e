#include "workbench/services/file_stream.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

#include "workbench/editing.h"
#include "workbench/editor/editor_window.h"
#include "workbench/paths.h"
#include "workbench/services/ide_string.h"

namespace workbench {

FileStream::FileStream(const ServiceContext& context)
    : Transient(context.live, "file stream"), context_(context) {}

int STDMETHODCALLTYPE FileStream::Open(IIdeString* file, int mode) {
  Close();
  const std::string text = textOf(file);
  name_ = text.empty() ? text : context_.paths.resolve(text);
  if (name_.empty() || mode < kStreamBuffer || mode > kStreamFile) {
    return 0;
  }
  if (mode != kStreamFile) {
    if (EditorWindow* editor = context_.editing.findEditor(name_)) {
      buffer_ = editor->text();
      size_ = static_cast<long>(buffer_.size());
      open_ = true;
      return 1;
    }
    if (mode == kStreamBuffer) {
      return 0;
    }
  }
  HANDLE handle = CreateFileA(name_.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                              nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return 0;
  }
  disk_.reset(handle);
  DWORD high = 0;
  const DWORD low = GetFileSize(handle, &high);
  if (high != 0 || low > static_cast<DWORD>(std::numeric_limits<long>::max())) {
    disk_.reset();
    return 0;
  }
  size_ = static_cast<long>(low);
  open_ = true;
  return 1;
}

int STDMETHODCALLTYPE FileStream::GetState() {
  return !name_.empty() && context_.editing.findEditor(name_) != nullptr ? 1 : 0;
}

long STDMETHODCALLTYPE FileStream::Seek(long offset, int origin) {
  if (!open_ || origin < kStreamFromStart || origin > kStreamFromEnd) {
    return -1;
  }
  const std::int64_t base = origin == kStreamFromStart  ? 0
                            : origin == kStreamFromHere ? position_
                                                        : size_;
  const std::int64_t target = base + offset;
  if (target < 0 || target > std::numeric_limits<long>::max()) {
    return -1;
  }
  position_ = static_cast<long>(target);
  return position_;
}

long STDMETHODCALLTYPE FileStream::Read(void* buffer, long count) {
  if (!open_ || count < 0 || buffer == nullptr) {
    return -1;
  }
  if (!disk_) {
    const long given = std::clamp(size_ - position_, 0L, count);
    if (given > 0) {
      std::memcpy(buffer, buffer_.data() + position_, static_cast<std::size_t>(given));
    }
    position_ += given;
    return given;
  }
  if (disk_at_ != position_ &&
      SetFilePointer(disk_.get(), position_, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER) {
    return -1;
  }
  DWORD given = 0;
  disk_at_ = -1;
  if (ReadFile(disk_.get(), buffer, static_cast<DWORD>(count), &given, nullptr) == 0) {
    return -1;
  }
  position_ += static_cast<long>(given);
  disk_at_ = position_;
  return static_cast<long>(given);
}

void STDMETHODCALLTYPE FileStream::Close() {
  open_ = false;
  disk_.reset();
  buffer_.clear();
  size_ = 0;
  position_ = 0;
  disk_at_ = 0;
}

}  // namespace workbench
