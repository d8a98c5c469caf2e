#include "addon/topbar/bar_window.h"

#include <string>

#include "addon/behaviours/general_behaviours.h"
#include "addon/html/documentation_run.h"
#include "addon/ide/bar_messages.h"
#include "addon/ide/editor_operations.h"
#include "addon/ide/find_window.h"
#include "addon/ide/header_recorder.h"
#include "addon/ide/help_file.h"
#include "addon/ide/hook_set.h"
#include "addon/ide/modeless_dialogs.h"
#include "addon/topbar/bar_menu.h"
#include "addon/topbar/command_table.h"
#include "addon/topbar/menu_help.h"
#include "addon/topbar/placement.h"
#include "addon/topbar/top_bar.h"

namespace kesto {
namespace {

constexpr UINT kStartUpItem = 99;
constexpr UINT_PTR kTimer = 1;
constexpr UINT kTimerPeriod = 1000;  // milliseconds
constexpr char kStartUpText[] = "Kesto Addon for Borland C++ 5.0 initializing...";

bool isTitlePopupOpen() {
  return hookSet != nullptr && hookSet->suspended();
}

void collapseBar() {
  if (topBar != nullptr) {
    topBar->collapse();
  }
}

// A window of the IDE's thread that a person can go on in.
bool takesActivation(HWND window, HWND bar) {
  return window != nullptr && window != bar && IsWindowVisible(window) && IsWindowEnabled(window) &&
         GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
}

// After a click that is the window in use before it. After anything else, such as the
// end of a box without owner, and when another program was in use, it is the frame, or
// the dialog that keeps the frame from being used.
HWND nextActive(HWND bar, bool clicked, HWND before) {
  if (clicked && takesActivation(before, bar)) {
    return before;
  }
  const HWND frame = findFrame();
  if (frame == nullptr || IsWindowEnabled(frame)) {
    return frame;
  }
  const HWND dialog = GetLastActivePopup(frame);
  return takesActivation(dialog, bar) ? dialog : frame;
}

// Returns true when that was all there is to do: the default processing would
// give the bar the keyboard, and with it the activation, back.
bool onActivation(HWND bar, WPARAM wParam, LPARAM lParam) {
  if (LOWORD(wParam) == WA_INACTIVE) {
    collapseBar();
    return false;
  }
  const HWND next =
      nextActive(bar, LOWORD(wParam) == WA_CLICKACTIVE, reinterpret_cast<HWND>(lParam));
  if (next == nullptr) {
    return false;
  }
  SetActiveWindow(next);
  return true;
}

void onMenuLoop(bool begins) {
  if (!begins) {
    collapseBar();
  }
  if (barMenu != nullptr) {
    barMenu->menuOpened(begins);
  }
}

void onOpenFoundFile(HWND bar, WPARAM line, LPARAM path) {
  // A copy: opening may ask, and the IDE may have closed by the answer.
  const std::string file(reinterpret_cast<const char*>(path));
  if (openAndRecord(file.c_str()) && IsWindow(bar)) {
    PostMessageA(bar, kGoToLineMessage, line, path);
  }
}

LRESULT CALLBACK barProcedure(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
      SetTimer(bar, kTimer, kTimerPeriod, nullptr);
      break;
    case WM_DESTROY:
      KillTimer(bar, kTimer);
      break;
    case WM_TIMER:
      if (generalBehaviours != nullptr) {
        generalBehaviours->timerTick();
      }
      return 0;
    case WM_COMMAND: {
      const int id = LOWORD(wParam);
      if (id != kCommandPaintButtons) {
        collapseBar();
      }
      if (dispatchCommand(bar, id, lParam)) {
        return 0;
      }
      break;
    }
    case WM_INITMENU:
      if (topBar != nullptr && !isTitlePopupOpen()) {
        topBar->expand();
      }
      break;
    case WM_ENTERMENULOOP:
    case WM_EXITMENULOOP:
      // wParam tells the popups of title bars, which are no menus of the bar.
      if (wParam == FALSE) {
        onMenuLoop(message == WM_ENTERMENULOOP);
      }
      break;
    case WM_INITMENUPOPUP:
      noteMenuOpened(reinterpret_cast<HMENU>(wParam));
      break;
    case WM_MENUSELECT:
      noteMenuSelection(wParam, lParam);
      if (!isTitlePopupOpen()) {
        showCommandStatus(LOWORD(wParam), HIWORD(wParam));
      }
      break;
    case WM_HELP:
      showHelpOn(message, menuHelpTopic());
      return TRUE;
    case WM_ACTIVATE:
      if (onActivation(bar, wParam, lParam)) {
        return 0;
      }
      break;
    case WM_CLOSE:
      // The lifecycle alone takes the bar down: without it no command arrives anywhere.
      return 0;
    case kGoToLineMessage:
      goToLine(reinterpret_cast<const char*>(lParam), static_cast<int>(wParam));
      return 0;
    case kDocumentationMessage:
      if (documentationRun != nullptr) {
        documentationRun->showProgress();
      }
      return 0;
    case kDialogKeyMessage:
      passDialogKey();
      return 0;
    case kOpenFoundFileMessage:
      onOpenFoundFile(bar, wParam, lParam);
      return 0;
    default:
      break;
  }
  return DefWindowProcA(bar, message, wParam, lParam);
}

}  // namespace

void registerBarClass(HINSTANCE instance) {
  WNDCLASSA bar_class = {};
  bar_class.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
  bar_class.lpfnWndProc = barProcedure;
  bar_class.hInstance = instance;
  bar_class.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
  bar_class.lpszClassName = kBarClass;
  RegisterClassA(&bar_class);
}

void unregisterBarClass(HINSTANCE instance) {
  UnregisterClassA(kBarClass, instance);
}

HWND createBarWindow(HINSTANCE instance, bool new_shell) {
  const HMENU menu = CreateMenu();
  AppendMenuA(menu, MF_STRING, kStartUpItem, kStartUpText);
  const ScreenMetrics metrics = {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN),
                                 GetSystemMetrics(SM_CYMENU), GetSystemMetrics(SM_CYCAPTION)};
  const BarPlacement place = creationPlacement(metrics, new_shell);
  const HWND bar =
      CreateWindowExA(new_shell ? WS_EX_TOPMOST | WS_EX_TOOLWINDOW : WS_EX_TOPMOST, kBarClass,
                      nullptr, new_shell ? WS_POPUP | WS_BORDER : WS_POPUP | WS_CAPTION, place.x,
                      place.y, place.width, place.height, nullptr, menu, instance, nullptr);
  if (bar == nullptr) {
    DestroyMenu(menu);
  }
  return bar;
}

}  // namespace kesto
