#include "workbench/messages/message_viewer.h"

#include <windowsx.h>

#include <algorithm>
#include <string>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/path_text.h"
#include "workbench/windows/window_class.h"

namespace workbench {
namespace {

constexpr int kIndent = 16;  // pixels a level
constexpr int kMargin = 4;
constexpr int kDeepest = 20;              // levels that are still drawn further in
constexpr std::size_t kMostShown = 1000;  // characters of one row

WNDPROC g_list_box = nullptr;  // the system's, behind every viewer

HFONT listFont() {
  return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

// The place goes before the text, as compilers write it.
std::string rowText(const Message& message) {
  std::string result;
  if (!message.file.empty()) {
    result = std::string(fileName(message.file));
    if (message.line > 0) {
      result += ' ';
      result += std::to_string(message.line);
    }
    result += ": ";
  }
  for (const char c : message.text.substr(0, kMostShown)) {
    result += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
  }
  return result;
}

COLORREF rowColour(int kind) {
  switch (kind) {
    case kMessageError:
      return RGB(176, 0, 0);
    case kMessageWarning:
      return RGB(128, 96, 0);
    default:
      return GetSysColor(COLOR_WINDOWTEXT);
  }
}

}  // namespace

MessageViewer::~MessageViewer() {
  if (window_ != nullptr) {
    SetWindowLongA(window_, GWL_USERDATA, 0);
  }
}

bool MessageViewer::registerClass(HINSTANCE instance) {
  WNDCLASSA info = {};
  if (GetClassInfoA(nullptr, "LISTBOX", &info) == 0) {
    return false;
  }
  g_list_box = info.lpfnWndProc;
  info.lpfnWndProc = windowProc;
  info.hInstance = instance;
  info.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  info.lpszClassName = ideapi::kMessageViewerClass;
  return registerOnce(info);
}

bool MessageViewer::create(HWND parent, HINSTANCE instance) {
  window_ = CreateWindowExA(0, ideapi::kMessageViewerClass, nullptr,
                            WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | LBS_NODATA |
                                LBS_OWNERDRAWFIXED | LBS_NOINTEGRALHEIGHT | LBS_NOTIFY,
                            0, 0, 0, 0, parent, nullptr, instance, nullptr);
  if (window_ == nullptr) {
    return false;
  }
  SetWindowLongA(window_, GWL_USERDATA, reinterpret_cast<LONG>(this));
  SendMessageA(window_, WM_SETFONT, reinterpret_cast<WPARAM>(listFont()), 0);
  widest_ = 0;
  return true;
}

LRESULT CALLBACK MessageViewer::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<MessageViewer*>(GetWindowLongA(window, GWL_USERDATA));
  if (self != nullptr) {
    if (message == WM_NCDESTROY) {
      self->window_ = nullptr;
    } else if (self->handleMessage(message, w, l)) {
      return 0;
    }
  }
  return CallWindowProcA(g_list_box, window, message, w, l);
}

bool MessageViewer::handleMessage(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND:
      if (LOWORD(w) == ideapi::kCommandClearMessages) {
        host_.clearShown();
        return true;
      }
      return false;
    case WM_KEYDOWN:
      if (w == VK_RETURN) {
        openSelected();
        return true;
      }
      return false;
    case WM_LBUTTONDBLCLK:
      openSelected();
      return true;
    case WM_RBUTTONDOWN:
      // The row under the pointer is the one that the menu is about.
      CallWindowProcA(g_list_box, window_, WM_LBUTTONDOWN, w, l);
      CallWindowProcA(g_list_box, window_, WM_LBUTTONUP, w, l);
      return true;
    case WM_CONTEXTMENU: {
      POINT place = {GET_X_LPARAM(l), GET_Y_LPARAM(l)};
      if (place.x == -1 && place.y == -1) {
        place = {kMargin, kMargin};
        ClientToScreen(window_, &place);
      }
      host_.viewerMenu(place);
      return true;
    }
    default:
      return false;
  }
}

void MessageViewer::measureRow(MEASUREITEMSTRUCT* item) {
  HDC dc = GetDC(nullptr);
  HGDIOBJ old_font = SelectObject(dc, listFont());
  TEXTMETRICA metrics = {};
  GetTextMetricsA(dc, &metrics);
  SelectObject(dc, old_font);
  ReleaseDC(nullptr, dc);
  item->itemHeight = static_cast<UINT>(metrics.tmHeight + 1);
}

void MessageViewer::drawRow(const DRAWITEMSTRUCT& item) {
  const std::vector<Message>* messages = host_.shownMessages();
  if (messages == nullptr || item.itemID >= messages->size()) {
    return;
  }
  const Message& message = (*messages)[item.itemID];
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, selected ? GetSysColor(COLOR_HIGHLIGHTTEXT) : rowColour(message.kind));
  const std::string text = rowText(message);
  const int x = kMargin + std::min(message.depth, kDeepest) * kIndent;
  TextOutA(item.hDC, item.rcItem.left + x, item.rcItem.top, text.data(),
           static_cast<int>(text.size()));
  SIZE size = {};
  GetTextExtentPoint32A(item.hDC, text.data(), static_cast<int>(text.size()), &size);
  if (x + size.cx + kMargin > widest_) {
    widest_ = x + size.cx + kMargin;
    SendMessageA(window_, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest_), 0);
  }
  if ((item.itemState & ODS_FOCUS) != 0) {
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

int MessageViewer::selectedRow() const {
  const LRESULT row = window_ != nullptr ? SendMessageA(window_, LB_GETCURSEL, 0, 0) : LB_ERR;
  return row == LB_ERR ? -1 : static_cast<int>(row);
}

void MessageViewer::select(int row) {
  if (window_ != nullptr) {
    SendMessageA(window_, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  }
}

void MessageViewer::showFrom(int row) {
  select(row);
  if (window_ != nullptr) {
    SendMessageA(window_, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
  }
}

void MessageViewer::openSelected() {
  const std::vector<Message>* messages = host_.shownMessages();
  const int row = selectedRow();
  if (messages != nullptr && row >= 0 && static_cast<std::size_t>(row) < messages->size()) {
    // Opening may change the list.
    const Message message = (*messages)[static_cast<std::size_t>(row)];
    host_.openMessage(message);
  }
}

int MessageViewer::lastVisibleRow() const {
  RECT client = {};
  GetClientRect(window_, &client);
  const LRESULT height = SendMessageA(window_, LB_GETITEMHEIGHT, 0, 0);
  const LRESULT rows = height > 0 ? client.bottom / height : 1;
  return static_cast<int>(SendMessageA(window_, LB_GETTOPINDEX, 0, 0) + rows);
}

void MessageViewer::refresh(bool other_group) {
  if (window_ == nullptr) {
    return;
  }
  const std::vector<Message>* messages = host_.shownMessages();
  const int count = messages != nullptr ? static_cast<int>(messages->size()) : 0;
  const auto before = static_cast<int>(SendMessageA(window_, LB_GETCOUNT, 0, 0));
  const int selected = other_group ? -1 : selectedRow();
  const LRESULT top = SendMessageA(window_, LB_GETTOPINDEX, 0, 0);
  const bool at_end = lastVisibleRow() >= before;
  SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
  SendMessageA(window_, LB_SETCOUNT, static_cast<WPARAM>(count), 0);
  SendMessageA(window_, LB_SETCURSEL, static_cast<WPARAM>(selected < count ? selected : -1), 0);
  const bool to_end = !other_group && at_end && selected < 0;
  SendMessageA(window_, LB_SETTOPINDEX,
               static_cast<WPARAM>(other_group ? 0 : (to_end ? std::max(0, count - 1) : top)), 0);
  if (other_group || count == 0) {
    widest_ = 0;
    SendMessageA(window_, LB_SETHORIZONTALEXTENT, 0, 0);
  }
  SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(window_, nullptr, TRUE);
}

}  // namespace workbench
