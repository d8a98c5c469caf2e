// A window of the frame other than an editor: one at a time of its class, made
// when it is first shown and gone when it is closed; what it shows lives
// elsewhere. The object outlives its window. User-interface thread only.
#pragma once

#include <windows.h>

#include "workbench/windows/mdi_child.h"

namespace workbench {

class MdiPane : private MdiChild {
 public:
  // Registers the class; the MDI client must outlive the pane's window.
  bool attach(HWND mdi_client, HINSTANCE program);
  // Makes the window or brings it forward; false when it cannot be made.
  bool show();
  // Null while it is closed.
  HWND window() const { return childWindow(); }
  bool active() const;

 protected:
  MdiPane(const char* class_name, const char* title) : class_name_(class_name), title_(title) {}
  ~MdiPane() = default;

  // Makes the controls inside; false closes the window again.
  virtual bool createControls() = 0;
  virtual void layOut(int width, int height) = 0;
  // Where the window first stands, in the client's coordinates.
  virtual RECT firstPlace(const RECT& client) const = 0;
  virtual HWND focusControl() const = 0;
  // A message of the window; false leaves it to the system.
  virtual bool paneMessage(UINT, WPARAM, LPARAM, LRESULT*) { return false; }
  // The window and its controls are no more.
  virtual void paneGone() {}

  using MdiChild::instance;
  HWND mdiClient() const { return mdi_client_; }

 private:
  LRESULT handleMessage(UINT message, WPARAM w, LPARAM l) final;
  void windowGone() final { paneGone(); }

  const char* class_name_;
  const char* title_;
  HWND mdi_client_ = nullptr;
  HINSTANCE program_ = nullptr;
};

}  // namespace workbench
