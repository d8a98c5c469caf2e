// Keeps topmost windows over the others, and dialogs over the window that owns them, where
// Wine does not: it draws the window that gets the keyboard over all others of its desktop,
// whatever their order. Elsewhere it
// does nothing. Watches the thread it is made on, for as long as it lives; one at a time.
#pragma once

#include <windows.h>

namespace workbench {

class TopmostOrder {
 public:
  TopmostOrder();
  ~TopmostOrder();
  TopmostOrder(const TopmostOrder&) = delete;
  TopmostOrder& operator=(const TopmostOrder&) = delete;

 private:
  HHOOK hook_ = nullptr;  // null where it is not needed
};

}  // namespace workbench
