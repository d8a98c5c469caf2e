// The status line at the foot of the frame: a text and a few fixed fields. The
// object outlives its window. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

#include "workbench/windows/handles.h"

namespace workbench {

class StatusBar {
 public:
  static bool registerClass(HINSTANCE instance);

  bool create(HWND parent, HINSTANCE instance);
  HWND window() const { return window_; }
  int height() const;
  void setText(const std::string& text);
  const std::string& text() const { return text_; }
  // "line:column", "Modified" or empty, "Insert" or "Overwrite", how the file is
  // encoded; all empty without an editor.
  void setFields(const std::string& position, const std::string& state, const std::string& mode,
                 const std::string& encoding);

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);
  void paint();

  HWND window_ = nullptr;
  OwnedFont font_;
  std::string text_;
  std::string position_;
  std::string state_;
  std::string mode_;
  std::string encoding_;
};

}  // namespace workbench
