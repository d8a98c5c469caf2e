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
constexpr const char* kPictures[] = {"BMPFUNC95", "BMPINC95", "BMPQKFIND95"};

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

// The left edge of button 0, from the editor's left edge.
int buttonsLeft(HWND editor, TitleSide side) {
  RECT place{};
  GetWindowRect(editor, &place);
  bool is_new = newLook();
  int width = static_cast<int>(place.right - place.left);
  int x = width - (is_new ? kNewRightMargin : kOldRightMargin) - 3 * kWidth;
  if (side == TitleSide::kRight) {
    return x;
  }
  return is_new ? std::min(x, kLeftMargin + titleWidth(editor)) : kLeftMargin;
}

bool buttonShows(HDC caption, int left, HBITMAP picture) {
  if (picture == nullptr) {
    return false;
  }
  HDC memory = CreateCompatibleDC(caption);
  HGDIOBJ before = SelectObject(memory, picture);
  bool same = true;
  for (int at = 0; same && at < kWidth * kHeight; ++at) {
    int x = at % kWidth, y = at / kWidth;
    COLORREF seen = GetPixel(caption, left + x, kTop + y);
    same = seen != CLR_INVALID && seen == GetPixel(memory, x, y);
  }
  SelectObject(memory, before);
  DeleteDC(memory);
  return same;
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
  LONG x = place.left + buttonsLeft(editor, side);
  return {x + button * kWidth + kWidth / 2, place.top + kTop + kHeight / 2};
}

bool titleButtonsShow(HWND editor, HINSTANCE addon, TitleSide side) {
  int left = buttonsLeft(editor, side);
  HDC caption = GetWindowDC(editor);
  bool show = true;
  for (const char* name : kPictures) {
    HBITMAP picture = LoadBitmapA(addon, name);
    show = show && buttonShows(caption, left, picture);
    DeleteObject(picture);
    left += kWidth;
  }
  ReleaseDC(editor, caption);
  return show;
}

}  // namespace workbench
