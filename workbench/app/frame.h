// The frame window ("CPPFRAME") with its menu, the MDI client and the status
// line. It knows windows and nothing of files; the handler must outlive it.
// User-interface thread only.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "workbench/app/status_bar.h"
#include "workbench/windows/handles.h"
#include "workbench/windows/menu_columns.h"
#include "workbench/windows/topmost_order.h"

namespace workbench {

class FrameHandler {
 public:
  virtual void frameCommand(int id) = 0;
  // Whether the command can be given now.
  virtual bool commandEnabled(int id) = 0;
  // The entry of the frame's menus that is highlighted; 0 for none that gives a command.
  virtual void commandHighlighted(int id) = 0;
  // False keeps the frame open.
  virtual bool mayCloseFrame() = 0;
  // The editors are gone, the frame's windows still stand.
  virtual void frameClosing() = 0;
  virtual void programActivated() = 0;
  // Every two seconds in which no box, menu or drag holds the frame.
  virtual void timePassed() = 0;
  // Another start of the program gives its path away; empty for none. False refuses it.
  virtual bool mayTakePath() = 0;
  virtual void takePath(const std::string& path) = 0;
  // The dialog that is open without a loop of its own; null for none.
  virtual HWND modelessDialog() = 0;

 protected:
  ~FrameHandler() = default;
};

class Frame {
 public:
  explicit Frame(FrameHandler& handler) : handler_(handler) {}

  // Returns false when the window cannot be made.
  bool create(HINSTANCE instance);
  HWND window() const { return window_; }
  HWND mdiClient() const { return mdi_client_; }
  StatusBar& statusBar() { return status_; }
  void setTitle(const std::string& title);
  // The items of the Tool menu, which is there while it has any; the ids are CM_FIRST_TOOL
  // and up, at most as many as there are.
  void setTools(const std::vector<std::string>& texts);
  // The texts at the end of the File menu, at most as many as there are ids for them.
  void setRecent(const std::vector<std::string>& texts);
  // Runs the message loop until the program ends; returns its exit code.
  int run();

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT handleMessage(UINT message, WPARAM w, LPARAM l);
  bool createClient();
  void layOut();
  void enableItems(HMENU menu);
  // Asks what has to be asked before the program may end.
  bool mayClose();
  // Ends the program, from within whatever menu, box or dialog is open.
  void close();
  bool takeOver(const COPYDATASTRUCT& data);

  FrameHandler& handler_;
  HINSTANCE instance_ = nullptr;
  HWND window_ = nullptr;
  HWND mdi_client_ = nullptr;
  HMENU file_menu_ = nullptr;    // the menu bar's
  HMENU window_menu_ = nullptr;  // likewise
  HMENU tool_menu_ = nullptr;    // the menu bar's while it is there
  StatusBar status_;
  MenuColumns menu_columns_;
  TopmostOrder topmost_order_;
  OwnedAccelerators accelerators_;
  bool asking_ = false;
  bool closing_ = false;
  std::string taken_;  // a path that another start gave away
};

}  // namespace workbench
