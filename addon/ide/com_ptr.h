// Owner of one reference on a component interface. Not copied: a reference
// moves, so that each is released exactly once. The counts are plain integers:
// user-interface thread only.
#pragma once

#include <utility>

namespace kesto {

template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  // Takes over a reference that the caller has.
  explicit ComPtr(T* pointer) : pointer_(pointer) {}
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPtr& operator=(ComPtr&& other) noexcept {
    if (this != &other) {
      reset();
      pointer_ = std::exchange(other.pointer_, nullptr);
    }
    return *this;
  }
  ComPtr(const ComPtr&) = delete;
  ComPtr& operator=(const ComPtr&) = delete;
  ~ComPtr() { reset(); }

  void reset() {
    if (T* old = std::exchange(pointer_, nullptr)) {
      old->Release();
    }
  }
  T* get() const { return pointer_; }
  // Gives the reference to the caller.
  T* detach() { return std::exchange(pointer_, nullptr); }
  T* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }

 private:
  T* pointer_ = nullptr;
};

}  // namespace kesto
