// The progress of copying, painted over the IDE's status window: blue as far as it is done,
// with the name of the file over it. Windows are painted meanwhile. The status window shows
// itself again when the bar goes. User-interface thread only.
#pragma once

#include <windows.h>

#include <string>

#include "addon/ide/copy_run.h"
#include "addon/ide/window_painting.h"

namespace kesto {

class ProgressBar : public CopyProgress {
 public:
  ProgressBar();
  ~ProgressBar() override;
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  bool show(std::string_view name, std::uint64_t done, std::uint64_t total) override;
  void catchUp() override;

 private:
  void paint();

  HWND window_;  // null: there is none to paint over
  RECT area_ = {};
  HBRUSH brush_;
  std::string name_;
  int filled_ = -1;  // pixels; -1: there is nothing to show yet
  PaintingWatch painting_;
};

}  // namespace kesto
