#include "workbench/app/frame.h"

#include <algorithm>

#include "ideapi/ide_identifiers.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/hand_over.h"
#include "workbench/windows/names.h"
#include "workbench/windows/window_class.h"

namespace workbench {
namespace {

constexpr UINT kCheckDisk = WM_APP + 1;
constexpr UINT kTimer = 1;
constexpr UINT kTimerMs = 2000;
constexpr UINT kOpenTaken = WM_APP + 2;
// The Window menu, to which the system appends the list of children.
constexpr int kWindowMenuPosition = 4;

}  // namespace

bool Frame::create(HINSTANCE instance) {
  instance_ = instance;
  WNDCLASSA info = windowClass(ideapi::kFrameClass, windowProc, instance, COLOR_APPWORKSPACE);
  info.hIcon = LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION));
  accelerators_.reset(LoadAcceleratorsA(instance, MAKEINTRESOURCEA(IDA_FRAME)));
  OwnedMenu menu(LoadMenuA(instance, MAKEINTRESOURCEA(IDM_FRAME)));
  if (RegisterClassA(&info) == 0 || !StatusBar::registerClass(instance)) {
    return false;
  }
  RECT area = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  // An add-on may lay a bar of a menu's height over the screen's top edge.
  area.top += GetSystemMetrics(SM_CYMENU) + 2 * GetSystemMetrics(SM_CYEDGE);
  return CreateWindowExA(0, ideapi::kFrameClass, kFrameTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                         area.left, area.top, area.right - area.left, area.bottom - area.top,
                         nullptr, menu.release(), instance, this) != nullptr;
}

bool Frame::createClient() {
  file_menu_ = GetSubMenu(GetMenu(window_), 0);
  window_menu_ = GetSubMenu(GetMenu(window_), kWindowMenuPosition);
  CLIENTCREATESTRUCT info = {window_menu_, CM_FIRST_CHILD};
  mdi_client_ = CreateWindowExA(WS_EX_CLIENTEDGE, ideapi::kMdiClientClass, nullptr,
                                WS_CHILD | WS_CLIPCHILDREN | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL,
                                0, 0, 0, 0, window_, nullptr, instance_, &info);
  return mdi_client_ != nullptr && status_.create(window_, instance_);
}

LRESULT CALLBACK Frame::windowProc(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<Frame*>(GetWindowLongA(window, 0));
  if (message == WM_NCCREATE) {
    self = static_cast<Frame*>(reinterpret_cast<CREATESTRUCTA*>(l)->lpCreateParams);
    self->window_ = window;
    SetWindowLongA(window, 0, reinterpret_cast<LONG>(self));
  }
  return self != nullptr ? self->handleMessage(message, w, l)
                         : DefFrameProcA(window, nullptr, message, w, l);
}

LRESULT Frame::handleMessage(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_CREATE:
      SetTimer(window_, kTimer, kTimerMs, nullptr);
      return createClient() ? 0 : -1;
    case WM_SIZE:
      // What is opened meanwhile still has room.
      if (w != SIZE_MINIMIZED) {
        layOut();
      }
      return 0;
    case WM_COMMAND:
      if (LOWORD(w) < CM_FIRST_CHILD) {
        handler_.frameCommand(LOWORD(w));
        return 0;
      }
      break;
    case WM_INITMENUPOPUP:
      if (HIWORD(l) == 0) {
        enableItems(reinterpret_cast<HMENU>(w));
      }
      break;
    case WM_MENUSELECT: {
      const bool command = (HIWORD(w) & (MF_POPUP | MF_SYSMENU)) == 0;
      handler_.commandHighlighted(command ? LOWORD(w) : 0);
      break;
    }
    case WM_ACTIVATEAPP:
      if (w != 0) {
        // Asking from within the activation would fight over the focus.
        PostMessageA(window_, kCheckDisk, 0, 0);
      }
      break;
    case kCheckDisk:
      if (!closing_ && IsWindowEnabled(window_) != 0) {
        handler_.programActivated();
      }
      return 0;
    case WM_TIMER:
      // Menus and drags hold the mouse.
      if (w == kTimer && !closing_ && IsWindowEnabled(window_) != 0 && GetCapture() == nullptr) {
        handler_.timePassed();
      }
      return 0;
    case WM_COPYDATA:
      return takeOver(*reinterpret_cast<const COPYDATASTRUCT*>(l)) ? TRUE : FALSE;
    case kOpenTaken:
      if (!closing_ && IsWindowEnabled(window_) != 0) {
        handler_.takePath(taken_);
      }
      return 0;
    case WM_QUERYENDSESSION:
      return mayClose() ? TRUE : FALSE;
    case WM_ENDSESSION:
      if (w != 0) {
        close();
      }
      return 0;
    case WM_CLOSE:
      // Disabled means that a box or dialog waits to be answered first.
      if (IsWindowEnabled(window_) != 0 && mayClose()) {
        close();
      }
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    case WM_NCDESTROY: {
      const HWND client = mdi_client_;
      const HWND window = window_;
      SetWindowLongA(window_, 0, 0);
      window_ = mdi_client_ = nullptr;
      return DefFrameProcA(window, client, message, w, l);
    }
    default:
      break;
  }
  return DefFrameProcA(window_, mdi_client_, message, w, l);
}

bool Frame::mayClose() {
  // While it is being asked, the question on the screen counts.
  if (closing_ || asking_) {
    return closing_;
  }
  asking_ = true;
  const bool may = handler_.mayCloseFrame();
  asking_ = false;
  return may;
}

void Frame::close() {
  if (closing_) {
    return;
  }
  closing_ = true;
  handler_.frameClosing();
  DestroyWindow(window_);
}

// Opening may ask, and the sender waits no longer than for the answer.
bool Frame::takeOver(const COPYDATASTRUCT& data) {
  if (data.dwData != kHandOver || data.cbData == 0 || closing_ || IsWindowEnabled(window_) == 0 ||
      !handler_.mayTakePath()) {
    return false;
  }
  taken_.assign(static_cast<const char*>(data.lpData), data.cbData - 1);
  ShowWindow(window_, IsIconic(window_) != 0 ? SW_RESTORE : SW_SHOW);
  SetForegroundWindow(window_);
  return PostMessageA(window_, kOpenTaken, 0, 0) != 0;
}

void Frame::layOut() {
  RECT area = {};
  GetClientRect(window_, &area);
  const int bar = std::min(static_cast<int>(area.bottom), status_.height());
  MoveWindow(mdi_client_, 0, 0, area.right, area.bottom - bar, TRUE);
  MoveWindow(status_.window(), 0, area.bottom - bar, area.right, bar, TRUE);
}

void Frame::enableItems(HMENU menu) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    const UINT id = GetMenuItemID(menu, i);
    if (id != static_cast<UINT>(-1) && id != 0 && id < CM_FIRST_CHILD) {
      EnableMenuItem(
          menu, id,
          MF_BYCOMMAND | (handler_.commandEnabled(static_cast<int>(id)) ? MF_ENABLED : MF_GRAYED));
    }
  }
}

void Frame::setTools(const std::vector<std::string>& texts) {
  HMENU bar = GetMenu(window_);
  // A maximized child puts its own menu first, so positions are looked up.
  int window_position = 0;
  for (int i = 0; i < GetMenuItemCount(bar); ++i) {
    const HMENU popup = GetSubMenu(bar, i);
    if (popup == tool_menu_ && popup != nullptr) {
      DeleteMenu(bar, static_cast<UINT>(i), MF_BYPOSITION);
      tool_menu_ = nullptr;
      --i;
    } else if (popup == window_menu_) {
      window_position = i;
    }
  }
  if (!texts.empty()) {
    tool_menu_ = CreatePopupMenu();
    for (UINT i = 0; i < texts.size() && CM_FIRST_TOOL + i <= CM_LAST_TOOL; ++i) {
      AppendMenuA(tool_menu_, MF_STRING, CM_FIRST_TOOL + i, texts[i].c_str());
    }
    InsertMenuA(bar, static_cast<UINT>(window_position), MF_BYPOSITION | MF_POPUP,
                reinterpret_cast<UINT_PTR>(tool_menu_), "&Tool");
  }
  DrawMenuBar(window_);
}

void Frame::setRecent(const std::vector<std::string>& texts) {
  for (UINT id = CM_FIRST_RECENT; id <= CM_LAST_RECENT; ++id) {
    DeleteMenu(file_menu_, id, MF_BYCOMMAND);
  }
  // They stand between separators of their own and the last entry, Exit.
  const auto last = static_cast<UINT>(GetMenuItemCount(file_menu_) - 1);
  if (!texts.empty() && GetMenuItemID(file_menu_, static_cast<int>(last) - 1) != 0) {
    InsertMenuA(file_menu_, last, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr);
    InsertMenuA(file_menu_, last, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr);
  }
  for (UINT i = 0; i < texts.size() && CM_FIRST_RECENT + i <= CM_LAST_RECENT; ++i) {
    const auto at = static_cast<UINT>(GetMenuItemCount(file_menu_) - 2);
    InsertMenuA(file_menu_, at, MF_BYPOSITION | MF_STRING, CM_FIRST_RECENT + i, texts[i].c_str());
  }
}

void Frame::setTitle(const std::string& title) {
  SetWindowTextA(window_, title.c_str());
}

int Frame::run() {
  // Only the wide calls bring characters beyond the code page to a window that takes them.
  const bool wide = (GetVersion() & 0x80000000U) == 0;
  MSG message = {};
  while ((wide ? GetMessageW(&message, nullptr, 0, 0) : GetMessageA(&message, nullptr, 0, 0)) > 0) {
    if (message.message == WM_KEYDOWN && window_ != nullptr) {
      // What time brings may ask, and the keys of a person who types would answer it.
      SetTimer(window_, kTimer, kTimerMs, nullptr);
    }
    HWND dialog = handler_.modelessDialog();
    if (dialog != nullptr && IsDialogMessageA(dialog, &message) != 0) {
      continue;
    }
    if (mdi_client_ != nullptr &&
        (TranslateMDISysAccel(mdi_client_, &message) != 0 ||
         TranslateAcceleratorA(window_, accelerators_.get(), &message) != 0)) {
      continue;
    }
    TranslateMessage(&message);
    if (wide) {
      DispatchMessageW(&message);
    } else {
      DispatchMessageA(&message);
    }
  }
  return static_cast<int>(message.wParam);
}

}  // namespace workbench
