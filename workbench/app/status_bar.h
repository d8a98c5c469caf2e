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
  const std::string& text() const { return texts_[0]; }
  // "line:column", "Modified" or empty, "Insert" or "Overwrite", how the file is
  // encoded; all empty without an editor.
  void setFields(const std::string& position, const std::string& state, const std::string& mode,
                 const std::string& encoding);

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);
  // From the left: the text, the position, the state, the mode and the encoding.
  static constexpr int kFields = 5;

  void paint();
  RECT fieldArea(int field) const;
  // Returns whether it is another text than before; the field is then painted anew.
  bool change(int field, const std::string& text);

  HWND window_ = nullptr;
  OwnedFont font_;
  std::string texts_[kFields];
};

}  // namespace workbench
