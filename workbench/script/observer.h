// Watches the user-interface thread with hooks: message boxes, dialogs, menus and
// the commands that reach the add-on's bar become events, and the driver asks
// here what is open. User-interface thread only; one at a time.
#pragma once

#include <windows.h>

#include <set>
#include <string>
#include <vector>

#include "workbench/script/modal_windows.h"

namespace workbench {

class EventLog;
class MainWindow;

// A menu that is being tracked: a popup, or a window's menu bar.
struct MenuLoop {
  HWND owner = nullptr;
  HMENU root = nullptr;
  bool is_bar = false;
  unsigned serial = 0;          // no two loops of a run have the same
  std::set<HMENU> shown_below;  // popups whose items an event has listed
};

class Observer {
 public:
  // Both must outlive the observer.
  Observer(MainWindow& window, EventLog& log);
  ~Observer();
  Observer(const Observer&) = delete;
  Observer& operator=(const Observer&) = delete;

  // The innermost menu being tracked, or null.
  const MenuLoop* menu() const { return loops_.empty() ? nullptr : &loops_.back(); }
  ModalWindows& windows() { return windows_; }
  // Whether the frame has been destroyed since the observer came.
  bool frameGone() const { return frame_gone_; }
  // What to call when the frame is destroyed.
  void onFrameGone(void (*call)(void*), void* data);

 private:
  static LRESULT CALLBACK cbtProc(int code, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK sentProc(int code, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK returnedProc(int code, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK fetchedProc(int code, WPARAM wparam, LPARAM lparam);
  void sent(const CWPSTRUCT& message);
  void commandReached(HWND window, WPARAM wparam);
  void popupOpened(HMENU popup);

  MainWindow& window_;
  EventLog& log_;
  ModalWindows windows_;
  std::vector<MenuLoop> loops_;
  unsigned next_serial_ = 1;
  HWND frame_;
  bool frame_gone_ = false;
  void (*on_frame_gone_)(void*) = nullptr;
  void* on_frame_gone_data_ = nullptr;
  std::vector<HHOOK> hooks_;
};

}  // namespace workbench
