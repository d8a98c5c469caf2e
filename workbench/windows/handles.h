// Owners of Windows handles: one template, an alias a kind.
#pragma once

#include <windows.h>

#include <utility>

namespace workbench {

template <typename Handle, auto kClose>
class Owned {
 public:
  Owned() = default;
  explicit Owned(Handle handle) : handle_(handle) {}
  ~Owned() { reset(); }
  Owned(Owned&& other) noexcept : handle_(other.release()) {}
  Owned& operator=(Owned&& other) noexcept {
    if (this != &other) {
      reset(other.release());
    }
    return *this;
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  Handle get() const { return handle_; }
  explicit operator bool() const { return handle_ != Handle{}; }
  Handle release() { return std::exchange(handle_, Handle{}); }
  void reset(Handle handle = Handle{}) {
    if (handle_ != Handle{}) {
      kClose(handle_);
    }
    handle_ = handle;
  }

 private:
  Handle handle_{};
};

inline void closeFile(HANDLE handle) {
  CloseHandle(handle);
}
inline void closeFind(HANDLE handle) {
  FindClose(handle);
}
template <typename Object>
void closeObject(Object object) {
  DeleteObject(object);
}
inline void closeDc(HDC dc) {
  DeleteDC(dc);
}
inline void closeMenu(HMENU menu) {
  DestroyMenu(menu);
}
inline void closeAccelerators(HACCEL table) {
  DestroyAcceleratorTable(table);
}

// A file handle that could not be had is null here, never INVALID_HANDLE_VALUE.
using OwnedFile = Owned<HANDLE, closeFile>;
using OwnedFind = Owned<HANDLE, closeFind>;
using OwnedFont = Owned<HFONT, closeObject<HFONT>>;
using OwnedBrush = Owned<HBRUSH, closeObject<HBRUSH>>;
using OwnedBitmap = Owned<HBITMAP, closeObject<HBITMAP>>;
using OwnedDc = Owned<HDC, closeDc>;
using OwnedMenu = Owned<HMENU, closeMenu>;
using OwnedAccelerators = Owned<HACCEL, closeAccelerators>;

}  // namespace workbench
