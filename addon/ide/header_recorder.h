// Who remembers the headers that were opened. The recent lists live on a floor
// above and enter themselves here; they stay their own owners. User-interface
// thread only.
#pragma once

#include <windows.h>

namespace kesto {

class HeaderRecorder {
 public:
  virtual ~HeaderRecorder() = default;
  // Records the file when it is a header. Returns 0 when another editor than
  // new_editor (null: none) already shows the file and was brought forward, else 1.
  virtual int headerUsed(const char* path, HWND new_editor) = 0;
};

// Null while nobody records.
extern HeaderRecorder* headerRecorder;

// Opens the file and, when that succeeded, has it recorded.
bool openAndRecord(const char* path);

}  // namespace kesto
