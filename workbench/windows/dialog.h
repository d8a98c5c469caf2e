// A modal dialog from a template of the program. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

namespace workbench {

class Dialog {
 public:
  Dialog() = default;
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  // Returns IDOK or IDCANCEL.
  int run(HWND owner, int template_id);

 protected:
  virtual ~Dialog() = default;
  virtual void fill() = 0;
  // Returns false to keep the dialog open.
  virtual bool accept() = 0;
  // F1 comes as a click on the Help button, where there is one.
  virtual void command(int control, int notification);
  virtual void timer() {}

  HWND window() const { return window_; }
  HWND item(int control) const { return GetDlgItem(window_, control); }
  std::string text(int control) const;
  void setText(int control, const std::string& text);
  bool checked(int control) const { return IsDlgButtonChecked(window_, control) == BST_CHECKED; }

 private:
  static INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM w, LPARAM l);
  void centre();

  HWND window_ = nullptr;
};

}  // namespace workbench
