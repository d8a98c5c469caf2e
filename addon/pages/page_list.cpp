#include "addon/pages/page_list.h"

#include <algorithm>
#include <string>

#include "addon/ide/gdi_handles.h"

namespace kesto {
namespace {

constexpr int kRowMargin = 4;  // pixels before and behind a text

bool isEnter(LPARAM message) {
  return message != 0 && reinterpret_cast<const MSG*>(message)->message == WM_KEYDOWN &&
         reinterpret_cast<const MSG*>(message)->wParam == VK_RETURN;
}

void tellPage(HWND list, int notification) {
  SendMessageA(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), notification),
               reinterpret_cast<LPARAM>(list));
}

LRESULT CALLBACK listProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
  // A list box leaves its user's number to the program.
  const auto former = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(list, GWLP_USERDATA));
  if (message == WM_GETDLGCODE && isEnter(lParam)) {
    return CallWindowProcA(former, list, message, wParam, lParam) | DLGC_WANTMESSAGE;
  }
  if (message == WM_KEYDOWN && (wParam == VK_RETURN || wParam == VK_SPACE)) {
    tellPage(list, wParam == VK_RETURN ? LBN_DBLCLK : kListSpace);
    return 0;
  }
  if (message == WM_CHAR && (wParam == '\r' || wParam == ' ')) {
    return 0;
  }
  if (message == WM_DESTROY) {
    // Wine's lists keep the stops when they go.
    CallWindowProcA(former, list, LB_SETTABSTOPS, 0, 0);
  }
  return CallWindowProcA(former, list, message, wParam, lParam);
}

}  // namespace

void takeListKeys(HWND list) {
  const LONG_PTR former = GetWindowLongPtrA(list, GWLP_WNDPROC);
  if (former == reinterpret_cast<LONG_PTR>(listProcedure)) {
    return;
  }
  SetWindowLongPtrA(list, GWLP_USERDATA, former);
  SetWindowLongPtrA(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(listProcedure));
}

int currentRow(HWND list) {
  const auto selected = static_cast<int>(SendMessageA(list, LB_GETCURSEL, 0, 0));
  const auto rows = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
  const auto marked = static_cast<int>(SendMessageA(list, LB_GETCARETINDEX, 0, 0));
  return selected != LB_ERR ? selected : std::clamp(marked, std::min(0, rows - 1), rows - 1);
}

void fitRowExtent(HWND list) {
  const ClientDc dc(list);
  const Selection font(dc.get(), reinterpret_cast<HFONT>(SendMessageA(list, WM_GETFONT, 0, 0)));
  const auto rows = static_cast<int>(SendMessageA(list, LB_GETCOUNT, 0, 0));
  int extent = 0;
  for (int row = 0; row < rows; ++row) {
    const std::string text = rowText(list, row);
    SIZE size = {};
    GetTextExtentPoint32A(dc.get(), text.data(), static_cast<int>(text.size()), &size);
    extent = std::max(extent, static_cast<int>(size.cx) + 2 * kRowMargin);
  }
  SendMessageA(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(extent), 0);
}

std::string rowText(HWND list, int row) {
  const auto length = static_cast<int>(SendMessageA(list, LB_GETTEXTLEN, row, 0));
  std::string text(static_cast<std::size_t>(std::max(0, length)) + 1, '\0');
  if (length == LB_ERR) {
    return {};
  }
  SendMessageA(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace kesto
