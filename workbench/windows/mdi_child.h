// A child window of the frame and the object that answers its messages; the
// object outlives the window or lets go of it. User-interface thread only.
#pragma once

#include <windows.h>

namespace workbench {

class MdiChild {
 public:
  MdiChild(const MdiChild&) = delete;
  MdiChild& operator=(const MdiChild&) = delete;

 protected:
  MdiChild() = default;
  ~MdiChild();

  // `background` as for `windowClass`.
  static bool registerChildClass(const char* name, HINSTANCE instance, int background);
  // False when the window cannot be made.
  bool createChild(HWND mdi_client, HINSTANCE instance, const char* class_name, const char* title,
                   int x, int y, int width, int height);

  virtual LRESULT handleMessage(UINT message, WPARAM w, LPARAM l) = 0;
  // The window and its controls are no more; the object may be deleted here.
  virtual void windowGone() = 0;

  // Null while there is none.
  HWND childWindow() const { return window_; }
  HINSTANCE instance() const { return instance_; }

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);

  HWND window_ = nullptr;
  HINSTANCE instance_ = nullptr;
};

}  // namespace workbench
