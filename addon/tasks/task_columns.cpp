#include "addon/tasks/task_columns.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "addon/tasks/task_ids.h"

namespace kesto {

namespace {

// Of type, state, priority, start and end, in quarters of an average character.
constexpr int kStops[] = {147, 249, 286, 309, 327};
constexpr int kRowMargin = 4;  // pixels between the end of a row and the border
constexpr int kTextIndent = 1;
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

}  // namespace

void TaskColumns::measure(HWND list, HFONT font) {
  const WindowDc dc(list);
  const Selection selected(dc.get(), font);
  TEXTMETRICA text = {};
  GetTextMetricsA(dc.get(), &text);
  GetCharWidthA(dc.get(), 0, 255, row_.widths.data());
  row_.further = 8 * text.tmAveCharWidth;
  const int average = averageWidth(row_.widths);
  std::transform(std::begin(kStops), std::end(kStops), stops_,
                 [&](int stop) { return MulDiv(stop, average, 4); });
}

bool TaskColumns::fits(HWND list, const std::string& dates) const {
  RECT client = {};
  GetClientRect(list, &client);
  return extentOf(dates) <= client.right - GetSystemMetrics(SM_CXVSCROLL);
}

void TaskColumns::setUp(HWND dialog, const DateFormat& format) {
  const HWND list = GetDlgItem(dialog, TASKS_LIST);
  const auto usual = reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0));
  const std::string day = format.shortDate({2000, 12, 0, 22, 0, 0, 0, 0});
  const std::string dates = "\t\t\t\t" + day + "\t" + day;
  LOGFONTA face = {};
  GetObjectA(usual, sizeof face, &face);
  lstrcpynA(face.lfFaceName, kSmallFace, LF_FACESIZE);
  measure(list, usual);
  font_ = OwnedFont();
  for (int less = 0; less < kSmaller && !fits(list, dates); ++less) {
    face.lfHeight += face.lfHeight < 0 ? 1 : -1;
    font_ = OwnedFont(CreateFontIndirectA(&face));
    measure(list, font_.get());
  }
  if (font_.get() != nullptr && fits(list, dates)) {
    SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
  } else {
    measure(list, usual);
  }
  SendMessageA(list, LB_SETTABSTOPS, std::size(kStops), reinterpret_cast<LPARAM>(kStops));
  placeHeadings(dialog, list, dates);
}

int TaskColumns::extentOf(std::string_view row) const {
  return kTextIndent + rowExtent(row, row_) + kRowMargin;
}

void TaskColumns::placeHeadings(HWND dialog, HWND list, const std::string& dates) const {
  POINT start = {kTextIndent, 0};
  MapWindowPoints(list, dialog, &start, 1);
  // The last column begins behind the start date, wherever that ends.
  const int places[] = {0,         stops_[0],
                        stops_[1], stops_[2],
                        stops_[3], rowExtent(dates.substr(0, dates.rfind('\t') + 1), row_)};
  for (int i = 0; i <= TASKS_HEADING_LAST - TASKS_HEADING_FIRST; ++i) {
    const HWND heading = GetDlgItem(dialog, TASKS_HEADING_FIRST + i);
    RECT place = {};
    GetWindowRect(heading, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    SetWindowPos(heading, nullptr, start.x + places[i], place.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

}  // namespace kesto
