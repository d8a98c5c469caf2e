#include "addon/ide/tab_rows.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace kesto {
namespace {

constexpr int kRowMargin = 4;  // pixels between the end of a row and the border
constexpr int kTextIndent = 1;
constexpr int kRowBytes = 64;  // that a row takes, about
constexpr int kHeading = 40;   // bytes of a heading's text
constexpr int kUnitsOfAverage = 4;
// The font that small text is made for, and what its height may be less at most, in pixels.
constexpr char kSmallFace[] = "Small Fonts";
constexpr int kSmaller = 3;

// The average that dialogs and lists reckon with.
int averageWidth(const std::array<int, 256>& widths) {
  const auto sum = [&](char from, char to) {
    return std::accumulate(widths.begin() + from, widths.begin() + to + 1, 0);
  };
  return ((sum('A', 'Z') + sum('a', 'z')) / 26 + 1) / 2;
}

int textWidth(HWND control) {
  char text[kHeading] = "";
  const int length = GetWindowTextA(control, text, sizeof text);
  const ClientDc dc(control);
  const Selection font(dc.get(), reinterpret_cast<HFONT>(SendMessageA(control, WM_GETFONT, 0, 0)));
  SIZE size = {};
  GetTextExtentPoint32A(dc.get(), text, length, &size);
  return size.cx;
}

}  // namespace

void TabRows::setUp(HWND list, std::span<const int> stops, std::string_view row) {
  list_ = list;
  units_ = stops;
  const auto usual = reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0));
  LOGFONTA face = {};
  GetObjectA(usual, sizeof face, &face);
  lstrcpynA(face.lfFaceName, kSmallFace, LF_FACESIZE);
  measure(usual);
  font_ = OwnedFont();
  for (int less = 0; less < kSmaller && !fits(row); ++less) {
    face.lfHeight += face.lfHeight < 0 ? 1 : -1;
    font_ = OwnedFont(CreateFontIndirectA(&face));
    measure(font_.get());
  }
  if (font_.get() != nullptr && fits(row)) {
    SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
  } else {
    measure(usual);
  }
  SendMessageA(list, LB_SETTABSTOPS, stops.size(), reinterpret_cast<LPARAM>(stops.data()));
}

// Wine's lists keep the stops when they go.
void TabRows::giveBack() const {
  SendMessageA(list_, LB_SETTABSTOPS, 0, 0);
}

void TabRows::measure(HFONT font) {
  const ClientDc dc(list_);
  const Selection selected(dc.get(), font);
  TEXTMETRICA text = {};
  GetTextMetricsA(dc.get(), &text);
  GetCharWidthA(dc.get(), 0, 255, metrics_.widths.data());
  metrics_.further = 8 * text.tmAveCharWidth;
  const int average = averageWidth(metrics_.widths);
  stops_.clear();
  for (const int stop : units_) {
    stops_.push_back(MulDiv(stop, average, kUnitsOfAverage));
  }
  metrics_.stops = stops_;
}

bool TabRows::fits(std::string_view row) const {
  RECT client = {};
  GetClientRect(list_, &client);
  return extentOf(row) <= client.right - GetSystemMetrics(SM_CXVSCROLL);
}

void TabRows::placeHeading(int id, std::string_view beginning) const {
  const HWND dialog = GetParent(list_);
  const HWND heading = GetDlgItem(dialog, id);
  POINT start = {kTextIndent + rowExtent(beginning, metrics_), 0};
  MapWindowPoints(list_, dialog, &start, 1);
  RECT place = {};
  GetWindowRect(heading, &place);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
  SetWindowPos(heading, nullptr, start.x, place.top, textWidth(heading), place.bottom - place.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT TabRows::tell(UINT message, WPARAM wParam, LPARAM lParam) const {
  const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(list_, GWLP_WNDPROC));
  return CallWindowProcA(procedure, list_, message, wParam, lParam);
}

void TabRows::replace(int count,
                      const std::function<void(int row, std::string& text)>& append) const {
  tell(LB_RESETCONTENT);
  tell(LB_INITSTORAGE, static_cast<WPARAM>(count), LPARAM{count} * kRowBytes);
  std::string text;
  int extent = 0;
  for (int row = 0; row < count; ++row) {
    text.clear();
    append(row, text);
    tell(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    extent = std::max(extent, extentOf(text));
  }
  tell(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(extent));
}

int TabRows::extentOf(std::string_view row) const {
  return kTextIndent + rowExtent(row, metrics_) + kRowMargin;
}

}  // namespace kesto
