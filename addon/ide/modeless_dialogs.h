// Dialogs that stay open while the IDE goes on. Its message loop knows nothing of them: the
// message hook turns a key that is meant for one into a message to the bar, whose handling
// gives it to the dialog, outside the hook. User-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

class ModelessDialog {
 public:
  ModelessDialog() = default;
  ModelessDialog(const ModelessDialog&) = delete;
  ModelessDialog& operator=(const ModelessDialog&) = delete;

  bool isOpen() const { return window_ != nullptr; }
  // Null unless it is open.
  HWND window() const { return window_; }
  void close();

 protected:
  // Whoever derives closes first thing in its own destructor: handle is gone here.
  ~ModelessDialog() = default;
  // Creates the window from the module's template, owned by the frame, with which it goes.
  // True when it is open by then.
  bool create(const char* template_name, HWND owner);
  // A message of the dialog procedure, from WM_INITDIALOG to WM_DESTROY, and its answer.
  // WM_CLOSE destroys the window unless it is answered. The object may be gone on return.
  virtual INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) = 0;

 private:
  friend bool takeDialogKey(MSG& message, HWND bar);
  friend void passDialogKey();
  static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
  // The open dialog that a window is or belongs to, or null.
  static HWND dialogOf(HWND window);
  void forget();

  static ModelessDialog* first;

  HWND window_ = nullptr;
  ModelessDialog* next_ = nullptr;
};

// For the message hook: whether the message, which is just taken from the queue, is a key for
// an open dialog. It then becomes one for the bar, kDialogKeyMessage.
bool takeDialogKey(MSG& message, HWND bar);
// For the bar: does what the key does in its dialog.
void passDialogKey();

}  // namespace kesto
