#include "workbench/app/status_bar.h"

#include <algorithm>

#include "workbench/windows/window_class.h"

namespace workbench {
namespace {

constexpr char kClass[] = "WorkbenchStatus";
constexpr int kFieldWidth = 84;  // pixels
constexpr int kGap = 3;

void drawField(HDC dc, RECT area, const std::string& text) {
  DrawEdge(dc, &area, BDR_SUNKENOUTER, BF_RECT);
  InflateRect(&area, -4, -1);
  DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &area,
            DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace

bool StatusBar::registerClass(HINSTANCE instance) {
  WNDCLASSA info = windowClass(kClass, windowProc, instance, kNoBackground);
  info.style = CS_HREDRAW | CS_VREDRAW;
  return RegisterClassA(&info) != 0;
}

bool StatusBar::create(HWND parent, HINSTANCE instance) {
  NONCLIENTMETRICSA metrics = {};
  metrics.cbSize = sizeof metrics;
  if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) != 0) {
    font_.reset(CreateFontIndirectA(&metrics.lfStatusFont));
  }
  window_ = CreateWindowExA(0, kClass, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent, nullptr,
                            instance, this);
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
  if (message == WM_ERASEBKGND) {
    return 1;
  }
  if (self != nullptr && message == WM_NCDESTROY) {
    SetWindowLongA(window, 0, 0);
    self->window_ = nullptr;
  }
  return DefWindowProcA(window, message, w, l);
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
  FillRect(dc.get(), &area, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(dc.get(), TRANSPARENT);
  SetTextColor(dc.get(), GetSysColor(COLOR_BTNTEXT));
  RECT field = area;
  InflateRect(&field, -2, -2);
  const std::string* const fields[] = {&encoding_, &mode_, &state_, &position_};
  for (const std::string* text : fields) {
    RECT box = field;
    box.left = std::max(field.left, field.right - kFieldWidth);
    drawField(dc.get(), box, *text);
    field.right = box.left - kGap;
  }
  drawField(dc.get(), field, text_);
  BitBlt(screen, 0, 0, area.right, area.bottom, dc.get(), 0, 0, SRCCOPY);
  SelectObject(dc.get(), old_font);
  SelectObject(dc.get(), old_bitmap);
  EndPaint(window_, &info);
}

void StatusBar::setText(const std::string& text) {
  text_ = text;
  if (window_ != nullptr) {
    InvalidateRect(window_, nullptr, FALSE);
    // A long operation may tell its progress without coming back to the loop.
    UpdateWindow(window_);
  }
}

void StatusBar::setFields(const std::string& position, const std::string& state,
                          const std::string& mode, const std::string& encoding) {
  if (position == position_ && state == state_ && mode == mode_ && encoding == encoding_) {
    return;
  }
  position_ = position;
  state_ = state;
  mode_ = mode;
  encoding_ = encoding;
  if (window_ != nullptr) {
    InvalidateRect(window_, nullptr, FALSE);
  }
}

}  // namespace workbench
