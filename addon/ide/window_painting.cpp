#include "addon/ide/window_painting.h"

#include "addon/ide/access.h"

namespace kesto {
namespace {

// A window that does not take its painting for done must not keep the thread.
constexpr int kMostPaintings = 32;

constexpr DWORD kPeriod = 50;  // milliseconds

}  // namespace

bool paintWindows() {
  MSG message;
  for (int i = 0; i < kMostPaintings &&
                  PeekMessageA(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE) != FALSE;
       ++i) {
    DispatchMessageA(&message);
  }
  return static_cast<bool>(acquireIde());
}

bool PaintingWatch::goOn() {
  const DWORD now = GetTickCount();
  painted_ = now - looked_ >= kPeriod;
  if (!painted_) {
    return true;
  }
  looked_ = now;
  return paintWindows();
}

}  // namespace kesto
