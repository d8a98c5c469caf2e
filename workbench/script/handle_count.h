// How many system objects the process holds, to see whether it leaks.
#pragma once

namespace workbench {

struct HandleCount {
  long user = 0;     // windows and menus, and where the system tells also the rest
  long gdi = 0;      // pens, brushes, bitmaps, fonts, device contexts
  long windows = 0;  // top-level windows of the process and all below them
  long menus = 0;
};

HandleCount countHandles();

}  // namespace workbench
