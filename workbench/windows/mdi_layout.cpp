#include "workbench/windows/mdi_layout.h"

#include <algorithm>
#include <vector>

namespace workbench {
namespace {

class HeldRedraw {
 public:
  explicit HeldRedraw(HWND window) : window_(window) {
    SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
  }
  ~HeldRedraw() {
    SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
  }
  HeldRedraw(const HeldRedraw&) = delete;
  HeldRedraw& operator=(const HeldRedraw&) = delete;

 private:
  HWND window_;
};

struct Children {
  std::vector<HWND> open;  // from the topmost down
  RECT area = {};          // that they have for themselves
};

// None is maximised afterwards: such a child is as large as all the others together.
Children childrenOf(HWND client) {
  BOOL maximized = FALSE;
  const LRESULT active =
      SendMessageA(client, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized));
  if (maximized != FALSE) {
    SendMessageA(client, WM_MDIRESTORE, static_cast<WPARAM>(active), 0);
  }
  Children children;
  GetClientRect(client, &children.area);
  bool icons = false;
  for (HWND child = GetWindow(client, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    // The titles of minimised ones are windows of their own. While the client is not
    // redrawn, no child counts as visible.
    if ((GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE) == 0 ||
        GetWindow(child, GW_OWNER) != nullptr) {
      continue;
    }
    if (IsIconic(child) != 0) {
      icons = true;
    } else {
      children.open.push_back(child);
    }
  }
  if (icons) {
    children.area.bottom -= GetSystemMetrics(SM_CYICONSPACING);
  }
  return children;
}

void place(HWND child, int x, int y, int width, int height) {
  SetWindowPos(child, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void tileChildren(HWND mdi_client) {
  const HeldRedraw held(mdi_client);
  const Children children = childrenOf(mdi_client);
  const int count = static_cast<int>(children.open.size());
  if (count == 0) {
    return;
  }
  int columns = 1;
  while ((columns + 1) * (columns + 1) <= count) {
    ++columns;
  }
  const int width = static_cast<int>(children.area.right);
  const int height = std::max(0, static_cast<int>(children.area.bottom));
  auto child = children.open.begin();
  for (int column = 0; column < columns; ++column) {
    // The last columns take what is left over.
    const int rows = count / columns + (column >= columns - count % columns ? 1 : 0);
    const int left = width * column / columns;
    const int right = width * (column + 1) / columns;
    for (int row = 0; row < rows; ++row) {
      const int top = height * row / rows;
      place(*child++, left, top, right - left, height * (row + 1) / rows - top);
    }
  }
}

void cascadeChildren(HWND mdi_client) {
  const HeldRedraw held(mdi_client);
  const Children children = childrenOf(mdi_client);
  const int step = GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYFRAME);
  const int width = static_cast<int>(children.area.right) * 3 / 4;
  const int height = std::max(0, static_cast<int>(children.area.bottom)) * 3 / 4;
  const int steps = std::max(1, (static_cast<int>(children.area.bottom) - height) / step);
  int at = 0;
  for (auto child = children.open.rbegin(); child != children.open.rend(); ++child, ++at) {
    place(*child, at % steps * step, at % steps * step, width, height);
  }
}

}  // namespace workbench
