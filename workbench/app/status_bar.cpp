#include "workbench/app/status_bar.h"

#include <algorithm>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/window_class.h"

namespace workbench {
namespace {

constexpr int kFieldWidth = 84;  // pixels
constexpr int kGap = 3;
constexpr UINT kTimer = 1;
// So long even a text that is overtaken at once can be read.
constexpr DWORD kLeastShownMs = 3000;

void drawField(HDC dc, RECT area, const std::string& text) {
  DrawEdge(dc, &area, BDR_SUNKENOUTER, BF_RECT);
  InflateRect(&area, -4, -1);
  DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &area,
            DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace

bool StatusBar::registerClass(HINSTANCE instance) {
  WNDCLASSA info = windowClass(ideapi::kStatusClass, windowProc, instance, kNoBackground);
  info.style = CS_HREDRAW | CS_VREDRAW;
  return RegisterClassA(&info) != 0;
}

bool StatusBar::create(HWND parent, HINSTANCE instance) {
  NONCLIENTMETRICSA metrics = {};
  metrics.cbSize = sizeof metrics;
  if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) != 0) {
    font_.reset(CreateFontIndirectA(&metrics.lfStatusFont));
  }
  window_ = CreateWindowExA(0, ideapi::kStatusClass, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent,
                            nullptr, instance, this);
  return window_ != nullptr;
}

int StatusBar::height() const {
  return GetSystemMetrics(SM_CYMENU) + 4;
}

LRESULT CALLBACK StatusBar::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<StatusBar*>(reinterpret_cast<CREATESTRUCTA*>(l)->lpCreateParams);
    self->window_ = window;
    SetWindowLongA(window, 0, reinterpret_cast<LONG>(self));
  }
  auto* self = reinterpret_cast<StatusBar*>(GetWindowLongA(window, 0));
  if (self != nullptr && message == WM_PAINT) {
    self->paint();
    return 0;
  }
  if (self != nullptr && message == WM_TIMER) {
    self->textLeaves();
    return 0;
  }
  if (message == WM_ERASEBKGND) {
    return 1;
  }
  if (self != nullptr && message == WM_NCDESTROY) {
    SetWindowLongA(window, 0, 0);
    self->window_ = nullptr;
  }
  return DefWindowProcA(window, message, w, l);
}

RECT StatusBar::fieldArea(int field) const {
  RECT area = {};
  GetClientRect(window_, &area);
  InflateRect(&area, -2, -2);
  for (int right = kFields - 1; right > field; --right) {
    area.right = std::max(area.left, area.right - kFieldWidth) - kGap;
  }
  if (field > 0) {
    area.left = std::max(area.left, area.right - kFieldWidth);
  }
  return area;
}

void StatusBar::paint() {
  PAINTSTRUCT info = {};
  HDC screen = BeginPaint(window_, &info);
  RECT area = {};
  GetClientRect(window_, &area);
  const OwnedDc dc(CreateCompatibleDC(screen));
  const OwnedBitmap bitmap(
      CreateCompatibleBitmap(screen, std::max(1L, area.right), std::max(1L, area.bottom)));
  const HGDIOBJ old_bitmap = SelectObject(dc.get(), bitmap.get());
  const HGDIOBJ old_font = SelectObject(
      dc.get(), font_ ? static_cast<HGDIOBJ>(font_.get()) : GetStockObject(ANSI_VAR_FONT));
  FillRect(dc.get(), &info.rcPaint, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(dc.get(), TRANSPARENT);
  SetTextColor(dc.get(), GetSysColor(COLOR_BTNTEXT));
  for (int field = 0; field < kFields; ++field) {
    const RECT box = fieldArea(field);
    RECT shared = {};
    if (IntersectRect(&shared, &box, &info.rcPaint) != 0) {
      drawField(dc.get(), box, field == 0 ? text() : texts_[field]);
    }
  }
  const RECT& part = info.rcPaint;
  BitBlt(screen, part.left, part.top, part.right - part.left, part.bottom - part.top, dc.get(),
         part.left, part.top, SRCCOPY);
  SelectObject(dc.get(), old_font);
  SelectObject(dc.get(), old_bitmap);
  EndPaint(window_, &info);
}

void StatusBar::passText() {
  if (texts_[0].empty() || passing_ || window_ == nullptr) {
    return;
  }
  passing_ = true;
  const DWORD shown = GetTickCount() - shown_at_;
  if (shown >= kLeastShownMs) {
    textLeaves();
  } else {
    SetTimer(window_, kTimer, kLeastShownMs - shown, nullptr);
  }
}

void StatusBar::textLeaves() {
  if (passing_) {
    const std::string leaving = texts_[0];
    setText("");
    if (left_) {
      left_(leaving);
    }
  }
}

bool StatusBar::change(int field, const std::string& text) {
  if (texts_[field] == text) {
    return false;
  }
  texts_[field] = text;
  paintAnew(field);
  return true;
}

void StatusBar::paintAnew(int field) {
  if (window_ != nullptr) {
    const RECT box = fieldArea(field);
    InvalidateRect(window_, &box, FALSE);
  }
}

void StatusBar::setHint(const std::string& hint) {
  if (hint_ != hint) {
    hint_ = hint;
    paintAnew(0);
  }
}

void StatusBar::setText(const std::string& text) {
  if (passing_ && window_ != nullptr) {
    KillTimer(window_, kTimer);
  }
  passing_ = false;
  shown_at_ = GetTickCount();
  if (change(0, text) && window_ != nullptr) {
    // A long operation may tell its progress without coming back to the loop.
    UpdateWindow(window_);
  }
}

void StatusBar::setFields(const std::string& position, const std::string& state,
                          const std::string& mode, const std::string& encoding) {
  change(1, position);
  change(2, state);
  change(3, mode);
  change(4, encoding);
}

}  // namespace workbench
