#include "workbench/script/observer.h"

#include "workbench/events/event_log.h"
#include "workbench/main_window.h"
#include "workbench/script/menu_reader.h"

namespace workbench {
namespace {

Observer* g_observer = nullptr;

// Sent for every repaint of an editor's frame: noise in a log.
constexpr WORD kPaintCommand = 111;

}  // namespace

Observer::Observer(MainWindow& window, EventLog& log)
    : window_(window), log_(log), windows_(log), frame_(window.frame()) {
  g_observer = this;
  const struct {
    int kind;
    HOOKPROC proc;
  } kinds[] = {{WH_CBT, cbtProc},
               {WH_CALLWNDPROC, sentProc},
               {WH_CALLWNDPROCRET, returnedProc},
               {WH_GETMESSAGE, fetchedProc}};
  for (const auto& entry : kinds) {
    HHOOK hook = SetWindowsHookExA(entry.kind, entry.proc, nullptr, GetCurrentThreadId());
    if (hook != nullptr) {
      hooks_.push_back(hook);
    }
  }
}

Observer::~Observer() {
  for (HHOOK hook : hooks_) {
    UnhookWindowsHookEx(hook);
  }
  g_observer = nullptr;
}

void Observer::onFrameGone(void (*call)(void*), void* data) {
  on_frame_gone_ = call;
  on_frame_gone_data_ = data;
}

LRESULT CALLBACK Observer::cbtProc(int code, WPARAM wparam, LPARAM lparam) {
  if (g_observer != nullptr && code == HCBT_ACTIVATE) {
    g_observer->windows_.noticeOpen(reinterpret_cast<HWND>(wparam));
  } else if (g_observer != nullptr && code == HCBT_DESTROYWND) {
    g_observer->windows_.noticeClosed(reinterpret_cast<HWND>(wparam));
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

LRESULT CALLBACK Observer::sentProc(int code, WPARAM wparam, LPARAM lparam) {
  if (g_observer != nullptr && code == HC_ACTION) {
    g_observer->sent(*reinterpret_cast<const CWPSTRUCT*>(lparam));
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

// After the owner has handled the message, so that a menu filled on opening is
// listed as it shows.
LRESULT CALLBACK Observer::returnedProc(int code, WPARAM wparam, LPARAM lparam) {
  if (g_observer != nullptr && code == HC_ACTION) {
    const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lparam);
    if (message.message == WM_INITMENUPOPUP) {
      g_observer->popupOpened(reinterpret_cast<HMENU>(message.wParam));
    }
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

LRESULT CALLBACK Observer::fetchedProc(int code, WPARAM wparam, LPARAM lparam) {
  if (g_observer != nullptr && code == HC_ACTION && wparam == PM_REMOVE) {
    const MSG& message = *reinterpret_cast<const MSG*>(lparam);
    if (message.message == WM_COMMAND) {
      g_observer->commandReached(message.hwnd, message.wParam);
    }
  }
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

void Observer::sent(const CWPSTRUCT& message) {
  switch (message.message) {
    case WM_COMMAND:
      commandReached(message.hwnd, message.wParam);
      break;
    case WM_ENTERMENULOOP:
      loops_.push_back({message.hwnd, nullptr, message.wParam == FALSE, next_serial_++, {}});
      break;
    case WM_INITMENU:
      if (!loops_.empty()) {
        loops_.back().root = reinterpret_cast<HMENU>(message.wParam);
      }
      break;
    case WM_EXITMENULOOP:
      if (!loops_.empty()) {
        loops_.pop_back();
      }
      break;
    case WM_NCDESTROY:
      if (message.hwnd == frame_) {
        frame_gone_ = true;
        if (on_frame_gone_ != nullptr) {
          on_frame_gone_(on_frame_gone_data_);
        }
      }
      break;
    default:
      break;
  }
}

void Observer::commandReached(HWND window, WPARAM wparam) {
  if (window == nullptr || LOWORD(wparam) == kPaintCommand || window != window_.addonBar()) {
    return;
  }
  log_.emit(Event("command").number("id", LOWORD(wparam)));
}

void Observer::popupOpened(HMENU popup) {
  if (loops_.empty() || loops_.back().shown_below.count(popup) != 0) {
    return;
  }
  MenuLoop& loop = loops_.back();
  addPopups(popup, &loop.shown_below);
  log_.emit(menuEvent(popup));
}

}  // namespace workbench
