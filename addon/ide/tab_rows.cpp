#include "addon/ide/tab_rows.h"

#include <cstring>

#include "addon/ide/gdi_handles.h"

namespace kesto {
namespace {

constexpr int kTextIndent = 1;  // pixels ahead of a row's text
constexpr int kRowMargin = 4;   // and between its end and the border
constexpr int kStopUnits = 4;   // of an average character's width

// As lists reckon it.
int averageWidth(HDC dc) {
  constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  SIZE size = {};
  GetTextExtentPoint32A(dc, kLetters, static_cast<int>(strlen(kLetters)), &size);
  return (size.cx / 26 + 1) / 2;
}

}  // namespace

TabRows::TabRows(HWND list, std::span<const int> stops) : list_(list) {
  SendMessageA(list, LB_SETTABSTOPS, stops.size(), reinterpret_cast<LPARAM>(stops.data()));
  const ClientDc dc(list);
  const Selection font(dc.get(), reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0)));
  const int average = averageWidth(dc.get());
  for (const int stop : stops) {
    stops_.push_back(MulDiv(stop, average, kStopUnits));
  }
  TEXTMETRICA text = {};
  GetTextMetricsA(dc.get(), &text);
  metrics_.stops = stops_;
  metrics_.further = 8 * text.tmAveCharWidth;
  GetCharWidthA(dc.get(), 0, 255, metrics_.widths.data());
}

void TabRows::placeHeadings(std::span<const int> ids) const {
  const HWND dialog = GetParent(list_);
  POINT start = {kTextIndent, 0};
  MapWindowPoints(list_, dialog, &start, 1);
  int column = start.x;
  for (std::size_t i = 0; i < ids.size(); ++i) {
    const HWND heading = GetDlgItem(dialog, ids[i]);
    RECT place = {};
    GetWindowRect(heading, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    SetWindowPos(heading, nullptr, column, place.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    column = i < stops_.size() ? start.x + stops_[i] : column;
  }
}

int TabRows::extentOf(std::string_view row) const {
  return kTextIndent + rowExtent(row, metrics_) + kRowMargin;
}

}  // namespace kesto
