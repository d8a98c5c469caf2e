// The frame, its status line, and the add-on's bar beside it. User-interface
// thread only.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

class MainWindow {
 public:
  // 0 before the frame exists.
  virtual HWND frame() = 0;
  virtual HWND mdiClient() = 0;
  virtual void setStatus(const std::string& text) = 0;
  virtual std::string status() = 0;
  // What the status line says of the active editor: "Modified", "New file" or empty.
  virtual std::string editorState() = 0;
  // The bar of the add-on (this program's top-level window of class "KADO"), or 0.
  virtual HWND addonBar() = 0;

 protected:
  ~MainWindow() = default;
};

}  // namespace workbench
