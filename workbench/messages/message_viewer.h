// The list of the messages of one group ("MsgViewer"): the system's list box
// without strings of its own, so that its length costs nothing. Its parent has
// to pass measureRow and drawRow on. The object outlives its window.
// User-interface thread only.
#pragma once

#include <windows.h>

#include <vector>

#include "workbench/messages/message_store.h"

namespace workbench {

class MessageViewerHost {
 public:
  // Null shows an empty list.
  virtual const std::vector<Message>* shownMessages() = 0;
  virtual void openMessage(const Message& message) = 0;
  virtual void clearShown() = 0;
  // The right button, or the key for it; a place on the screen.
  virtual void viewerMenu(POINT place) = 0;

 protected:
  ~MessageViewerHost() = default;
};

class MessageViewer {
 public:
  explicit MessageViewer(MessageViewerHost& host) : host_(host) {}
  ~MessageViewer();
  MessageViewer(const MessageViewer&) = delete;
  MessageViewer& operator=(const MessageViewer&) = delete;

  static bool registerClass(HINSTANCE instance);
  bool create(HWND parent, HINSTANCE instance);
  HWND window() const { return window_; }
  static void measureRow(MEASUREITEMSTRUCT* item);
  void drawRow(const DRAWITEMSTRUCT& item);
  // The host's messages have changed; a list that showed its end goes on doing so.
  void refresh(bool other_group);
  // -1 for none.
  int selectedRow() const;
  // -1 selects none.
  void select(int row);
  // Selects the row and shows it with what follows.
  void showFrom(int row);
  void openSelected();

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);
  bool handleMessage(UINT message, WPARAM w, LPARAM l);
  int lastVisibleRow() const;

  MessageViewerHost& host_;
  HWND window_ = nullptr;
  int widest_ = 0;  // pixels, of the rows seen so far
};

}  // namespace workbench
