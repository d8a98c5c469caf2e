// Owners of drawing handles: each is given back when its owner goes.
// An owner stays on the thread that made it.
#pragma once

#include <windows.h>

#include <utility>

namespace kesto {

// The device context of a whole window, frame included.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetWindowDC(window)) {}
  ~WindowDc() { ReleaseDC(window_, dc_); }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// The device context of a window's inner area.
class ClientDc {
 public:
  explicit ClientDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~ClientDc() { ReleaseDC(window_, dc_); }
  ClientDc(const ClientDc&) = delete;
  ClientDc& operator=(const ClientDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

class MemoryDc {
 public:
  explicit MemoryDc(HDC like) : dc_(CreateCompatibleDC(like)) {}
  ~MemoryDc() { DeleteDC(dc_); }
  MemoryDc(const MemoryDc&) = delete;
  MemoryDc& operator=(const MemoryDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HDC dc_;
};

class OwnedBitmap {
 public:
  explicit OwnedBitmap(HBITMAP bitmap) : bitmap_(bitmap) {}
  ~OwnedBitmap() {
    if (bitmap_ != nullptr) {
      DeleteObject(bitmap_);
    }
  }
  OwnedBitmap(const OwnedBitmap&) = delete;
  OwnedBitmap& operator=(const OwnedBitmap&) = delete;
  HBITMAP get() const { return bitmap_; }

 private:
  HBITMAP bitmap_;
};

class OwnedFont {
 public:
  explicit OwnedFont(HFONT font = nullptr) : font_(font) {}
  ~OwnedFont() { release(); }
  OwnedFont(OwnedFont&& other) noexcept : font_(std::exchange(other.font_, nullptr)) {}
  OwnedFont& operator=(OwnedFont&& other) noexcept {
    release();
    font_ = std::exchange(other.font_, nullptr);
    return *this;
  }
  HFONT get() const { return font_; }

 private:
  void release() {
    if (font_ != nullptr) {
      DeleteObject(font_);
    }
  }

  HFONT font_;
};

// An object selected into a device context, and the former one put back.
class Selection {
 public:
  Selection(HDC dc, HGDIOBJ object) : dc_(dc), former_(SelectObject(dc, object)) {}
  ~Selection() { SelectObject(dc_, former_); }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

 private:
  HDC dc_;
  HGDIOBJ former_;
};

}  // namespace kesto
