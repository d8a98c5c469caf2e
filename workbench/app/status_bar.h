// The status line at the foot of the frame: a text and a few fixed fields. The
// object outlives its window. User-interface thread only.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "workbench/windows/handles.h"

namespace workbench {

class StatusBar {
 public:
  static bool registerClass(HINSTANCE instance);

  bool create(HWND parent, HINSTANCE instance);
  HWND window() const { return window_; }
  int height() const;
  // Called with a text that has left by itself.
  void setLeftListener(std::function<void(const std::string&)> left) { left_ = std::move(left); }
  void setText(const std::string& text);
  // Something else has happened than what the text tells: it leaves, though not before it
  // was there long enough to be read.
  void passText();
  // Stands in place of the text, which comes back when the hint is empty again.
  void setHint(const std::string& hint);
  // What stands there now.
  const std::string& text() const { return hint_.empty() ? texts_[0] : hint_; }
  const std::string& state() const { return texts_[2]; }
  // "line:column", "Modified", "New file" or empty, "Insert" or "Overwrite", how the file is
  // encoded; all empty without an editor.
  void setFields(const std::string& position, const std::string& state, const std::string& mode,
                 const std::string& encoding);

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM w, LPARAM l);
  // From the left: the text, the position, the state, the mode and the encoding.
  static constexpr int kFields = 5;

  void paint();
  void textLeaves();
  RECT fieldArea(int field) const;
  // Returns whether it is another text than before; the field is then painted anew.
  bool change(int field, const std::string& text);
  void paintAnew(int field);

  HWND window_ = nullptr;
  OwnedFont font_;
  std::function<void(const std::string&)> left_;
  DWORD shown_at_ = 0;    // the system's milliseconds
  bool passing_ = false;  // the text leaves when its time is over
  std::string hint_;
  std::string texts_[kFields];
};

}  // namespace workbench
