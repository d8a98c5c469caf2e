// What a person has of a search that lasts, although it holds the user-interface thread:
// after a second the status line tells how far it is, uncovered windows are painted, and
// Escape ends it. Nothing else that waits in the thread's queue is looked at: commands and
// keys come after the search, but for that Escape, which is gone. What other programs send
// does arrive, the end of the session among it: that stops the search, and nothing that was
// there before may be relied on after it. User-interface thread only; made when the search
// begins.
#pragma once

#include <windows.h>

#include <string>

#include "addon/foundation/folders.h"

namespace kesto {

class SearchWatch : public WalkWatch {
 public:
  // The text names the search; how far it is stands behind it.
  explicit SearchWatch(std::string text);
  bool goOn(int directories, int files) override;
  bool stopped() const { return stopped_; }
  // To be called when all was searched: the text takes the place of how far it was, where
  // that was told.
  void finished(const char* text) const;

 private:
  std::string text_;
  // Milliseconds of the system's clock.
  DWORD begun_;
  DWORD looked_;
  DWORD told_;
  bool has_told_ = false;
  bool stopped_ = false;
};

}  // namespace kesto
