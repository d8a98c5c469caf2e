// What an editor shows after painting only what changed.
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "doctest.h"
#include "tests/workbench/program_fixture.h"
#include "workbench/windows/command_ids.h"
#include "workbench/windows/handles.h"

using namespace workbench;

namespace {

// A view of a text, shown and partly covered by another view of it.
class Views {
 public:
  Views() {
    std::string text;
    for (int i = 1; i < 998; ++i) {
      text += i % 7 == 0 ? "/* one\r\n" : i % 7 == 2 ? "two */ 3\r\n" : "\tint three = \"4\";\r\n";
    }
    writeFile(folder_.file("a.cpp"), text);
    REQUIRE(program.application.openPath(folder_.path()));
    ShowWindow(program.application.frame(), SW_SHOWNOACTIVATE);
    view = open();
    program.application.frameCommand(CM_WINDOW_NEW_VIEW);
    other = open();
    REQUIRE(other != view);
    MoveWindow(view->window(), 0, 0, 420, 300, TRUE);
    MoveWindow(other->window(), 60, 140, 200, 120, TRUE);
    // The caret blinks.
    SetFocus(nullptr);
  }
  std::vector<DWORD> pixels() const {
    UpdateWindow(view->textWindow());
    RECT area = {};
    GetClientRect(view->textWindow(), &area);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = area.right;
    info.bmiHeader.biHeight = -area.bottom;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<DWORD> result(static_cast<std::size_t>(area.right * area.bottom));
    const HDC screen = GetDC(view->textWindow());
    {
      const OwnedDc memory(CreateCompatibleDC(screen));
      const OwnedBitmap bitmap(CreateCompatibleBitmap(screen, area.right, area.bottom));
      const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
      BitBlt(memory.get(), 0, 0, area.right, area.bottom, screen, 0, 0, SRCCOPY);
      SelectObject(memory.get(), before);
      GetDIBits(screen, bitmap.get(), 0, static_cast<UINT>(area.bottom), result.data(), &info,
                DIB_RGB_COLORS);
    }
    ReleaseDC(view->textWindow(), screen);
    return result;
  }
  // How many pixels from top to bottom are to be painted.
  int stale() const {
    RECT area = {};
    GetUpdateRect(view->textWindow(), &area, FALSE);
    return static_cast<int>(area.bottom - area.top);
  }

 private:
  EditorWindow* open() { return program.application.editFile("a.cpp", 1); }

  ScratchFolder folder_;

 public:
  Program program;
  EditorWindow* view = nullptr;
  EditorWindow* other = nullptr;
};

// Counts how often the frames of editors are painted.
class FramePaintings {
 public:
  FramePaintings() {
    count_ = 0;
    hook_ = SetWindowsHookExA(WH_CALLWNDPROC, watch, nullptr, GetCurrentThreadId());
  }
  ~FramePaintings() { UnhookWindowsHookEx(hook_); }
  FramePaintings(const FramePaintings&) = delete;
  FramePaintings& operator=(const FramePaintings&) = delete;
  int count() const { return count_; }

 private:
  static LRESULT CALLBACK watch(int code, WPARAM w, LPARAM l) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(l);
    char name[80] = "";
    GetClassNameA(message.hwnd, name, sizeof name);
    if (message.message == WM_NCPAINT && std::string(name) == ideapi::kEditorClass) {
      ++count_;
    }
    return CallNextHookEx(nullptr, code, w, l);
  }

  static inline int count_ = 0;
  HHOOK hook_ = nullptr;
};

}  // namespace

TEST_CASE("what is painted after a change is what a full painting shows") {
  Views views;
  unsigned int seed = 1;
  const auto below = [&seed](int bound) {
    seed = seed * 1103515245u + 12345u;
    return static_cast<int>((seed >> 8) % static_cast<unsigned int>(bound));
  };
  const char* pieces[] = {"x", "if (1)", "\n", "/*", "*/", "\n//\n\n", "wide\twide\twide\twide"};
  const WPARAM scrolls[] = {SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN, SB_TOP, SB_BOTTOM};
  const HWND text = views.view->textWindow();
  for (int i = 0; i < 300; ++i) {
    CAPTURE(i);
    EditorWindow* hand = below(3) == 0 ? views.other : views.view;
    const int line = below(24) + (below(3) == 0 ? 985 : 1);
    switch (below(8)) {
      case 0:
        SendMessageA(text, WM_VSCROLL, scrolls[below(6)], 0);
        break;
      case 1:
        SendMessageA(text, WM_HSCROLL, scrolls[below(6)], 0);
        break;
      case 2:
        hand->select(line, 1 + below(9), line + below(4), 1 + below(9));
        break;
      case 3:
        SendMessageA(hand->textWindow(), WM_KEYDOWN, below(2) == 0 ? VK_DELETE : VK_BACK, 0);
        break;
      case 4:
        SendMessageA(hand->textWindow(), WM_UNDO, 0, 0);
        break;
      case 5:
        // Extends the selection, and takes the focus with its caret.
        SendMessageA(text, WM_LBUTTONDOWN, MK_SHIFT, MAKELPARAM(below(400), below(260)));
        SendMessageA(text, WM_LBUTTONUP, 0, 0);
        SetFocus(nullptr);
        break;
      default:
        hand->setCaret(line, 1 + below(9));
        hand->type(pieces[below(7)]);
    }
    const std::vector<DWORD> after_change = views.pixels();
    InvalidateRect(text, nullptr, FALSE);
    REQUIRE(views.pixels() == after_change);
  }
}

TEST_CASE("a key paints the rows that it changes") {
  Views views;
  const HWND text = views.view->textWindow();
  RECT area = {};
  GetClientRect(text, &area);
  views.view->setCaret(3, 1);
  views.pixels();
  for (const WPARAM key : {VK_RIGHT, VK_DOWN, VK_END}) {
    SendMessageA(text, WM_KEYDOWN, key, 0);
    CHECK(views.stale() == 0);
  }
  SendMessageA(text, WM_CHAR, 'x', 0);
  CHECK(views.stale() > 0);
  CHECK(views.stale() < area.bottom / 4);
}

TEST_CASE("many views are laid out beside or behind each other and painted once") {
  Views views;
  Application& application = views.program.application;
  constexpr int kViews = 40;
  for (int i = 2; i < kViews; ++i) {
    application.frameCommand(CM_WINDOW_NEW_VIEW);
  }
  const HWND client = application.mdiClient();
  ShowWindow(views.view->window(), SW_MINIMIZE);
  ShowWindow(views.other->window(), SW_MAXIMIZE);
  RECT icon = {};
  GetWindowRect(views.view->window(), &icon);
  for (const int command : {CM_WINDOW_TILE, CM_WINDOW_CASCADE, CM_WINDOW_TILE}) {
    CAPTURE(command);
    FramePaintings paintings;
    application.frameCommand(command);
    RedrawWindow(client, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CHECK(paintings.count() >= kViews);
    CHECK(paintings.count() <= 2 * kViews);
    CHECK(IsIconic(views.view->window()) != 0);
    RECT whole = {};
    GetWindowRect(client, &whole);
    long covered = 0;
    long last_bottom = 0;
    for (HWND child = GetWindow(client, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      RECT place = {};
      RECT inside = {};
      GetWindowRect(child, &place);
      if (IsIconic(child) == 0 && GetWindow(child, GW_OWNER) == nullptr) {
        CHECK((IntersectRect(&inside, &place, &whole) && EqualRect(&inside, &place)));
        covered += (place.right - place.left) * (place.bottom - place.top);
        last_bottom = std::max(last_bottom, place.bottom);
      }
    }
    if (command == CM_WINDOW_TILE) {
      RECT area = {};
      GetClientRect(client, &area);
      CHECK(last_bottom <= icon.top);
      CHECK(covered == area.right * (area.bottom - GetSystemMetrics(SM_CYICONSPACING)));
    }
  }
}

TEST_CASE("what others draw over the status line stays until the line is painted anew") {
  Program program;
  const HWND frame = program.application.frame();
  ShowWindow(frame, SW_SHOWNOACTIVATE);
  program.application.setStatus("text");
  const HWND status = FindWindowExA(frame, nullptr, ideapi::kStatusClass, nullptr);
  REQUIRE(status != nullptr);
  UpdateWindow(status);
  RECT area = {};
  GetClientRect(status, &area);
  const auto strangers = [&] {
    int count = 0;
    const HDC dc = GetDC(status);
    for (int x = 0; x < area.right; x += 5) {
      count += GetPixel(dc, x, area.bottom / 2) == RGB(0, 0, 255) ? 1 : 0;
    }
    ReleaseDC(status, dc);
    return count;
  };
  const HDC dc = GetDC(status);
  const OwnedBrush blue(CreateSolidBrush(RGB(0, 0, 255)));
  FillRect(dc, &area, blue.get());
  ReleaseDC(status, dc);
  const int drawn = strangers();
  CHECK(drawn == (area.right + 4) / 5);
  // The same text again does not touch it.
  program.application.setStatus("text");
  UpdateWindow(status);
  CHECK(strangers() == drawn);
  InvalidateRect(status, nullptr, TRUE);
  UpdateWindow(status);
  CHECK(strangers() == 0);
}
