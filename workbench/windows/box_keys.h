// Lets the letter that a message box underlines in a button press it, also where the
// system wants the Alt key with it. User-interface thread only.
#pragma once

#include <windows.h>

namespace workbench {

// Watches the thread's boxes while it lives.
class BoxKeys {
 public:
  BoxKeys();
  ~BoxKeys();
  BoxKeys(const BoxKeys&) = delete;
  BoxKeys& operator=(const BoxKeys&) = delete;

 private:
  static LRESULT CALLBACK watch(int code, WPARAM w, LPARAM l);

  HHOOK hook_ = nullptr;
};

}  // namespace workbench
