#include "workbench/script/title_bar.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include "workbench/script/settings.h"
#include "workbench/script/window_text.h"

namespace workbench {
namespace {

constexpr int kTop = 4;
constexpr int kWidth = 24;
constexpr int kHeight = 18;
constexpr int kLeftMargin = 23;
constexpr int kNewRightMargin = 58;
constexpr int kOldRightMargin = 41;

// Windows 95 and Windows NT 4 brought the new captions.
bool newLook() {
  OSVERSIONINFOA version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (!GetVersionExA(&version)) {
    return false;
  }
  return version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS ||
         (version.dwPlatformId == VER_PLATFORM_WIN32_NT && version.dwMajorVersion > 3);
}

int titleWidth(HWND window) {
  std::string title = windowText(window);
  HDC dc = GetWindowDC(window);
  HGDIOBJ before = SelectObject(dc, GetStockObject(SYSTEM_FONT));
  SIZE size{};
  GetTextExtentPoint32A(dc, title.data(), static_cast<int>(title.size()), &size);
  SelectObject(dc, before);
  ReleaseDC(window, dc);
  return size.cx;
}

}  // namespace

TitleSide storedTitleSide() {
  std::string stored;
  bool right = readSetting("QuickFind", "LeftSide", &stored) && std::atoi(stored.c_str()) == 0;
  return right ? TitleSide::kRight : TitleSide::kLeft;
}

POINT titleButtonCenter(HWND editor, int button, TitleSide side) {
  RECT place{};
  GetWindowRect(editor, &place);
  bool is_new = newLook();
  LONG x = place.right - (is_new ? kNewRightMargin : kOldRightMargin) - 3 * kWidth;
  if (side == TitleSide::kLeft) {
    LONG left = place.left + kLeftMargin;
    x = is_new ? std::min(x, left + titleWidth(editor)) : left;
  }
  return {x + button * kWidth + kWidth / 2, place.top + kTop + kHeight / 2};
}

}  // namespace workbench
