// The clipboard, open while an object lives; user-interface thread only.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace kesto {

class Clipboard {
 public:
  // Another program may have it open; that is waited for, this many milliseconds at most.
  explicit Clipboard(HWND owner, DWORD patience = 250);
  ~Clipboard();
  Clipboard(const Clipboard&) = delete;
  Clipboard& operator=(const Clipboard&) = delete;

  // The calls below do nothing when it could not be opened.
  bool isOpen() const { return open_; }
  std::optional<std::string> text() const;
  void clear();

 private:
  bool open_;
};

// The text that a window copies when asked for its selection, empty when nothing is
// selected, or when the clipboard holds what could not be put back: all that is on it
// survives.
std::string copySelection(HWND owner, HWND text_window);

}  // namespace kesto
