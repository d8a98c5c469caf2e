// Answers the hooks' questions from the features and the bar, whose objects the
// lifecycle owns. User-interface thread only.
#pragma once

#include "addon/ide/hook_set.h"

namespace kesto {

class AddonHookHost : public HookHost {
 public:
  bool navigationEnabled() const override;
  int titleButtonAt(HWND editor, POINT& point) const override;
  unsigned completionKey() const override;
  unsigned searchKey(int search) const override;
  bool barFollowsFrame() const override;
  bool barWatchesProjectView() const override;
  bool barStaysOnTop() const override;
  void resetAutoSave() override;
};

}  // namespace kesto
