// The clipboard's text. Open while an object lives; user-interface thread only.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace kesto {

class Clipboard {
 public:
  // Another program may have it open; that is waited for, not for long.
  explicit Clipboard(HWND owner);
  ~Clipboard();
  Clipboard(const Clipboard&) = delete;
  Clipboard& operator=(const Clipboard&) = delete;

  // The calls below do nothing when it could not be opened.
  bool isOpen() const { return open_; }
  std::optional<std::string> text() const;
  void clear();
  // Replaces everything by the text.
  void setText(const std::string& text);

 private:
  bool open_ = false;
};

// The text that a window copies when asked for its selection, empty when nothing is
// selected. The clipboard's own text survives.
std::string copySelection(HWND owner, HWND text_window);

}  // namespace kesto
