#include "addon/ide/hook_set.h"

#include <algorithm>
#include <string>

#include "addon/ide/find_window.h"
#include "doctest.h"
#include "tests/addon/window_fixture.h"

namespace {

class Host : public kesto::HookHost {
 public:
  bool navigation = true;
  int button = -1;
  unsigned completion = 0;
  unsigned searches[4] = {};
  bool follows = true;
  bool watches = false;
  bool on_top = false;
  int companions_shown = -1;
  int auto_save_resets = 0;

  bool navigationEnabled() const override { return navigation; }
  int titleButtonAt(HWND, POINT& point) const override {
    if (button >= 0) {
      point = {11, 22};
    }
    return button;
  }
  unsigned completionKey() const override { return completion; }
  unsigned searchKey(int search) const override { return searches[search]; }
  bool barFollowsFrame() const override { return follows; }
  bool barWatchesProjectView() const override { return watches; }
  bool barStaysOnTop() const override { return on_top; }
  void showCompanions(bool shown) override { companions_shown = shown ? 1 : 0; }
  void resetAutoSave() override { ++auto_save_resets; }
};

struct Hooked {
  WindowFixture windows;
  Host host;
  kesto::HookSet hooks{windows.bar, host};

  // Real input, so that the hooks of mouse and keyboard see it. Returns once the
  // thread has taken it all.
  std::vector<int> afterInput() {
    std::vector<int> ids;
    const auto collect = [&] {
      const std::vector<int> more = windows.commands();
      ids.insert(ids.end(), more.begin(), more.end());
    };
    while (MsgWaitForMultipleObjects(0, nullptr, FALSE, 300, QS_ALLINPUT) == WAIT_OBJECT_0) {
      collect();
    }
    collect();
    return ids;
  }
  void press(std::initializer_list<BYTE> keys) {
    for (const BYTE key : keys) {
      keybd_event(key, static_cast<BYTE>(MapVirtualKeyA(key, 0)), 0, 0);
    }
    std::vector<BYTE> reversed(keys);
    std::reverse(reversed.begin(), reversed.end());
    for (const BYTE key : reversed) {
      keybd_event(key, static_cast<BYTE>(MapVirtualKeyA(key, 0)), KEYEVENTF_KEYUP, 0);
    }
  }
  // Each click lies apart from the one before, so that no two make a double click.
  void click(HWND window, DWORD down, DWORD up) {
    RECT frame = {};
    GetWindowRect(window, &frame);
    SetCursorPos(frame.left + 100 + 20 * (clicks_++ % 6), frame.top + 8);
    mouse_event(down, 0, 0, 0, 0);
    mouse_event(up, 0, 0, 0, 0);
  }

 private:
  int clicks_ = 0;
};

// Keys that a capturing window was sent.
std::vector<WPARAM> captured;

LRESULT CALLBACK captureProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kesto::kCapturedKeyMessage) {
    captured.push_back(wParam);
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

TEST_CASE("clicks on an editor's title become commands and never reach the IDE") {
  Hooked hooked;
  const HWND editor = hooked.windows.editor("C:\\SRC\\A.CPP:2 *");
  SetForegroundWindow(hooked.windows.frame);
  hooked.afterInput();

  SUBCASE("a button") {
    const int commands[] = {189, 187, 188};
    for (int button = 0; button < 3; ++button) {
      hooked.host.button = button;
      hooked.click(editor, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
      const std::vector<int> ids = hooked.afterInput();
      CHECK(std::count(ids.begin(), ids.end(), commands[button]) == 1);
    }
    CHECK(hooked.hooks.target().window == editor);
    CHECK(std::string(hooked.hooks.target().title) == "C:\\SRC\\A.CPP");
    CHECK(hooked.hooks.target().click.x == 11);
    CHECK(hooked.hooks.target().click.y == 22);
  }
  SUBCASE("the right button, anywhere on the title") {
    hooked.click(editor, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    const std::vector<int> ids = hooked.afterInput();
    CHECK(std::count(ids.begin(), ids.end(), 197) == 1);
    CHECK(std::string(hooked.hooks.target().documented) == "C:\\SRC\\A.CPP:2");
  }
  SUBCASE("not while a popup is open, the menus are off or the editor is disabled") {
    hooked.host.button = 0;
    hooked.hooks.suspend(true);
    hooked.click(editor, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    std::vector<int> ids = hooked.afterInput();
    hooked.hooks.suspend(false);
    CHECK(std::count(ids.begin(), ids.end(), 189) == 0);
    hooked.host.navigation = false;
    hooked.click(editor, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    CHECK(hooked.afterInput().empty());
    hooked.host.navigation = true;
    EnableWindow(editor, FALSE);
    hooked.click(editor, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    ids = hooked.afterInput();
    CHECK(std::count(ids.begin(), ids.end(), 197) == 0);
  }
}

TEST_CASE("keys become commands when their whole code fits") {
  Hooked hooked;
  SetForegroundWindow(hooked.windows.frame);
  SetFocus(hooked.windows.frame);
  hooked.host.completion = 222;
  hooked.host.searches[0] = 5116;  // Ctrl+Shift+F5
  hooked.host.searches[3] = 2116;  // Alt+F5
  hooked.afterInput();

  hooked.press({222});
  CHECK(hooked.afterInput() == std::vector<int>{102});
  hooked.press({VK_CONTROL, 222});
  CHECK(hooked.afterInput().empty());
  hooked.press({VK_CONTROL, VK_SHIFT, VK_F5});
  CHECK(hooked.afterInput().empty());  // no editor yet
  const HWND editor = hooked.windows.editor("C:\\A.CPP:1");
  SetFocus(hooked.windows.frame);
  hooked.afterInput();
  hooked.press({VK_CONTROL, VK_SHIFT, VK_F5});
  CHECK(hooked.afterInput() == std::vector<int>{190});
  CHECK(hooked.hooks.target().window == editor);
  CHECK(std::string(hooked.hooks.target().title) == "C:\\A.CPP:1");
  hooked.press({VK_MENU, VK_F5});
  CHECK(hooked.afterInput() == std::vector<int>{193});
  hooked.host.navigation = false;
  hooked.press({VK_MENU, VK_F5});
  CHECK(hooked.afterInput().empty());
}

TEST_CASE("a capturing window gets every key but the modifiers") {
  Hooked hooked;
  const HWND capture = hooked.windows.create("KestoTestBar", "", WS_POPUP, nullptr);
  SetWindowLongA(capture, GWL_WNDPROC, reinterpret_cast<LONG>(captureProcedure));
  SetForegroundWindow(hooked.windows.frame);
  SetFocus(hooked.windows.frame);
  hooked.host.completion = 222;
  hooked.afterInput();
  captured.clear();
  hooked.hooks.startKeyCapture(capture);
  hooked.press({VK_SHIFT});
  CHECK(hooked.afterInput().empty());
  CHECK(captured.empty());
  hooked.press({VK_CONTROL, VK_F5});
  hooked.press({222});
  CHECK(hooked.afterInput().empty());
  CHECK(captured == std::vector<WPARAM>{VK_F5, 222});
  hooked.hooks.stopKeyCapture();
  hooked.press({222});
  CHECK(hooked.afterInput() == std::vector<int>{102});
  DestroyWindow(capture);
}

TEST_CASE("windows that come, go and repaint are told by the host's wishes") {
  Hooked hooked;
  hooked.windows.drain();
  const HWND editor = hooked.windows.editor("A.CPP");
  std::vector<int> ids = hooked.windows.commands();
  CHECK(std::count(ids.begin(), ids.end(), 101) == 1);
  SendMessageA(editor, WM_NCACTIVATE, TRUE, 0);
  ids = hooked.windows.commands();
  CHECK(std::count(ids.begin(), ids.end(), 111) >= 1);
  CHECK(hooked.windows.last_lparam == reinterpret_cast<LPARAM>(editor));
  // Too narrow for buttons.
  SetWindowPos(editor, nullptr, 0, 0, 2 * GetSystemMetrics(SM_CYCAPTION), 100, SWP_NOMOVE);
  hooked.windows.drain();
  SendMessageA(editor, WM_NCACTIVATE, TRUE, 0);
  CHECK(hooked.windows.commands().empty());

  const auto openAndCloseProjectView = [&] {
    DestroyWindow(
        hooked.windows.create(ideapi::kProjectClass, "", WS_CHILD, hooked.windows.client));
    ids = hooked.windows.commands();
    return std::count(ids.begin(), ids.end(), 103);
  };
  CHECK(openAndCloseProjectView() == 0);
  hooked.host.watches = true;
  CHECK(openAndCloseProjectView() == 2);

  PostMessageA(hooked.windows.frame, WM_COMMAND, 13104, 0);
  PostMessageA(hooked.windows.bar, WM_COMMAND, 13104, 0);
  hooked.windows.drain();
  CHECK(hooked.host.auto_save_resets == 1);
}

TEST_CASE("the bar hides, comes back and rises with the frame") {
  Hooked hooked;
  const HWND bar = hooked.windows.bar;
  const auto topmost = [&] { return (GetWindowLongA(bar, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; };
  SendMessageA(hooked.windows.frame, WM_SIZE, SIZE_MINIMIZED, 0);
  CHECK(!IsWindowVisible(bar));
  CHECK(hooked.host.companions_shown == 0);
  SendMessageA(hooked.windows.frame, WM_SIZE, SIZE_RESTORED, 0);
  CHECK(IsWindowVisible(bar));
  CHECK(hooked.host.companions_shown == 1);
  hooked.host.follows = false;
  SendMessageA(hooked.windows.frame, WM_SIZE, SIZE_MINIMIZED, 0);
  CHECK(IsWindowVisible(bar));

  SendMessageA(hooked.windows.frame, WM_ACTIVATE, WA_ACTIVE, 0);
  CHECK(topmost());
  SendMessageA(hooked.windows.frame, WM_ACTIVATE, WA_INACTIVE, 0);
  CHECK(!topmost());
  hooked.host.on_top = true;
  SendMessageA(hooked.windows.frame, WM_ACTIVATE, WA_ACTIVE, 0);
  CHECK(!topmost());
}
