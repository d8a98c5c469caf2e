#include "workbench/messages/note_tab.h"

#include <algorithm>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/window_class.h"

namespace workbench {
namespace {

constexpr int kMargin = 12;     // pixels on either side of a name
constexpr int kNarrowest = 60;  // pixels, while there is room

HFONT tabFont() {
  return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

}  // namespace

NoteTab::~NoteTab() {
  if (window_ != nullptr) {
    SetWindowLongA(window_, 0, 0);
  }
}

bool NoteTab::registerClass(HINSTANCE instance) {
  return registerOnce(windowClass(ideapi::kNoteTabClass, windowProc, instance, COLOR_BTNFACE));
}

bool NoteTab::create(HWND parent, HINSTANCE instance) {
  window_ = CreateWindowExA(0, ideapi::kNoteTabClass, nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 0, 0,
                            parent, nullptr, instance, nullptr);
  if (window_ != nullptr) {
    SetWindowLongA(window_, 0, reinterpret_cast<LONG>(this));
  }
  return window_ != nullptr;
}

void NoteTab::setTabs(const std::vector<std::string>& names, int selected) {
  names_ = names;
  selected_ = selected;
  if (window_ != nullptr) {
    InvalidateRect(window_, nullptr, TRUE);
  }
}

LRESULT CALLBACK NoteTab::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<NoteTab*>(GetWindowLongA(window, 0));
  if (self != nullptr) {
    switch (message) {
      case WM_PAINT:
        self->paint();
        return 0;
      case WM_LBUTTONDOWN:
        self->click({static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))});
        return 0;
      case WM_NCDESTROY:
        self->window_ = nullptr;
        break;
      default:
        break;
    }
  }
  return DefWindowProcA(window, message, w, l);
}

std::vector<RECT> NoteTab::places() const {
  RECT client = {};
  GetClientRect(window_, &client);
  HDC dc = GetDC(window_);
  HGDIOBJ old_font = SelectObject(dc, tabFont());
  std::vector<int> widths;
  int total = 0;
  for (const std::string& name : names_) {
    SIZE size = {};
    GetTextExtentPoint32A(dc, name.data(), static_cast<int>(name.size()), &size);
    widths.push_back(std::max(kNarrowest, static_cast<int>(size.cx) + 2 * kMargin));
    total += widths.back();
  }
  SelectObject(dc, old_font);
  ReleaseDC(window_, dc);
  if (total > client.right && !names_.empty()) {
    std::fill(widths.begin(), widths.end(),
              static_cast<int>(client.right) / static_cast<int>(names_.size()));
  }
  std::vector<RECT> result;
  LONG x = 0;
  for (const int width : widths) {
    result.push_back({x, 0, x + width, client.bottom});
    x += width;
  }
  return result;
}

void NoteTab::paint() {
  PAINTSTRUCT info = {};
  HDC dc = BeginPaint(window_, &info);
  HGDIOBJ old_font = SelectObject(dc, tabFont());
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
  const std::vector<RECT> tabs = places();
  for (std::size_t i = 0; i < tabs.size(); ++i) {
    RECT tab = tabs[i];
    const bool shown = static_cast<int>(i) == selected_;
    tab.bottom -= shown ? 0 : 3;
    FillRect(dc, &tab, GetSysColorBrush(shown ? COLOR_WINDOW : COLOR_BTNFACE));
    DrawEdge(dc, &tab, EDGE_RAISED, BF_LEFT | BF_RIGHT | BF_BOTTOM);
    InflateRect(&tab, -4, 0);
    DrawTextA(dc, names_[i].c_str(), -1, &tab,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
  }
  SelectObject(dc, old_font);
  EndPaint(window_, &info);
}

void NoteTab::click(POINT point) {
  const std::vector<RECT> tabs = places();
  for (std::size_t i = 0; i < tabs.size(); ++i) {
    if (PtInRect(&tabs[i], point) != 0) {
      chosen_(static_cast<int>(i));
      return;
    }
  }
}

}  // namespace workbench
