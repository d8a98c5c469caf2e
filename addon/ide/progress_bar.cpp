#include "addon/ide/progress_bar.h"

#include <algorithm>

#include "addon/ide/find_window.h"
#include "addon/ide/gdi_handles.h"
#include "ideapi/ide_identifiers.h"

namespace kesto {
namespace {

constexpr COLORREF kBarColour = 0xFF0000;  // blue
constexpr COLORREF kNameOverBar = 0xFFFFFF;
constexpr int kFreePixels = 90;

HWND findStatusWindow() {
  const HWND frame = findFrame();
  return frame != nullptr ? findChildWindow(frame, ideapi::kStatusClass, nullptr) : nullptr;
}

// The part of the text that lies within the clip, in a colour of its own.
void drawName(HDC dc, const RECT& area, const RECT& clip, const std::string& name,
              COLORREF colour) {
  const int saved = SaveDC(dc);
  IntersectClipRect(dc, clip.left, clip.top, clip.right, clip.bottom);
  SetTextColor(dc, colour);
  RECT place = area;
  DrawTextA(dc, name.c_str(), static_cast<int>(name.size()), &place,
            DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  RestoreDC(dc, saved);
}

}  // namespace

ProgressBar::ProgressBar() : window_(findStatusWindow()), brush_(CreateSolidBrush(kBarColour)) {
  if (window_ != nullptr) {
    GetClientRect(window_, &area_);
    area_.right = std::max(area_.left, area_.right - kFreePixels);
  }
}

ProgressBar::~ProgressBar() {
  DeleteObject(brush_);
  if (window_ != nullptr && IsWindow(window_)) {
    InvalidateRect(window_, nullptr, TRUE);
    UpdateWindow(window_);
  }
}

bool ProgressBar::show(std::string_view name, std::uint64_t done, std::uint64_t total) {
  if (!painting_.goOn()) {
    window_ = nullptr;
    return false;
  }
  const int width = area_.right - area_.left;
  filled_ = total > 0 ? static_cast<int>(static_cast<std::uint64_t>(width) * done / total) : width;
  name_ = name;
  if (painting_.painted()) {
    catchUp();
  }
  return true;
}

void ProgressBar::catchUp() {
  if (window_ != nullptr) {
    paint();
  }
}

void ProgressBar::paint() {
  const ClientDc screen(window_);
  const MemoryDc dc(screen.get());
  const int height = area_.bottom - area_.top;
  const OwnedBitmap bitmap(CreateCompatibleBitmap(
      screen.get(), std::max(1, static_cast<int>(area_.right)), std::max(1, height)));
  const Selection selected_bitmap(dc.get(), bitmap.get());
  const Selection selected_font(dc.get(), GetStockObject(ANSI_VAR_FONT));
  SetBkMode(dc.get(), TRANSPARENT);
  RECT done = area_;
  done.right = done.left + filled_;
  RECT left = area_;
  left.left = done.right;
  FillRect(dc.get(), &left, GetSysColorBrush(COLOR_BTNFACE));
  FillRect(dc.get(), &done, brush_);
  drawName(dc.get(), area_, left, name_, GetSysColor(COLOR_BTNTEXT));
  drawName(dc.get(), area_, done, name_, kNameOverBar);
  BitBlt(screen.get(), area_.left, area_.top, area_.right - area_.left, height, dc.get(),
         area_.left, area_.top, SRCCOPY);
}

}  // namespace kesto
