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

// Keys that a capturing window was sent.
std::vector<WPARAM> captured;

struct Hooked {
  WindowFixture windows;
  Host host;
  kesto::HookSet hooks{windows.bar, host};

  // Commands posted by real input, which the hooks of mouse and keyboard see.
  // Input keeps its order: once the key that ends it is through, all of it is.
  std::vector<int> afterInput() {
    press({kEndOfInput});
    std::vector<int> ids;
    const DWORD deadline = GetTickCount() + 10000;
    while (!end_seen_ && GetTickCount() < deadline) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 1000, QS_ALLINPUT);
      for (const int id : windows.commands()) {
        ids.push_back(id);
      }
      end_seen_ = windows.saw_key_up == kEndOfInput || takeCapturedEnd();
    }
    REQUIRE(end_seen_);
    end_seen_ = false;
    windows.saw_key_up = 0;
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
  // The display echoes a move late and would put the pointer back to an earlier
  // place: the click waits for the pointer to arrive, and sets it once more.
  void click(HWND window, DWORD down, DWORD up) {
    RECT frame = {};
    GetWindowRect(window, &frame);
    const POINT place = {frame.left + 100 + 20 * (clicks_++ % 6), frame.top + 8};
    const LPARAM wanted = MAKELPARAM(place.x, place.y);
    const DWORD deadline = GetTickCount() + 10000;
    windows.last_title_move = 0;
    SetCursorPos(place.x, place.y);
    while (windows.last_title_move != wanted && GetTickCount() < deadline) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 1000, QS_ALLINPUT);
      windows.drain();
    }
    SetCursorPos(place.x, place.y);
    mouse_event(down, 0, 0, 0, 0);
    mouse_event(up, 0, 0, 0, 0);
  }

 private:
  static constexpr BYTE kEndOfInput = VK_F13;

  static bool takeCapturedEnd() {
    const bool taken = !captured.empty() && captured.back() == kEndOfInput;
    if (taken) {
      captured.pop_back();
    }
    return taken;
  }

  int clicks_ = 0;
  bool end_seen_ = false;
};

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
  hooked.afterInput();

  SUBCASE("a button") {
    const int commands[] = {189, 187, 188};
    const HWND other = hooked.windows.editor("C:\\SRC\\B.CPP");
    SetWindowPos(other, HWND_TOP, 40, 160, 0, 0, SWP_NOSIZE);
    hooked.afterInput();
    for (int button = 0; button < 3; ++button) {
      hooked.host.button = button;
      hooked.click(editor, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
      const std::vector<int> ids = hooked.afterInput();
      CHECK(std::count(ids.begin(), ids.end(), commands[button]) == 1);
    }
    CHECK(GetWindow(hooked.windows.client, GW_CHILD) == editor);
    CHECK(hooked.hooks.target().window == editor);
    CHECK(std::string(hooked.hooks.target().title) == "C:\\SRC\\A.CPP");
    CHECK(std::string(hooked.hooks.target().file) == "C:\\SRC\\A.CPP");
    CHECK(hooked.hooks.target().click.x == 11);
    CHECK(hooked.hooks.target().click.y == 22);
  }
  SUBCASE("a title longer than the slots is cut, not written past them") {
    for (const size_t length : {179U, 256U, 511U}) {
      CAPTURE(length);
      const std::string title = "C:\\" + std::string(length - 3, 'A');
      SetWindowTextA(editor, title.c_str());
      hooked.click(editor, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
      std::vector<int> ids = hooked.afterInput();
      CHECK(std::count(ids.begin(), ids.end(), 197) == 1);
      CHECK(std::string(hooked.hooks.target().title) == title.substr(0, 178));
      CHECK(std::string(hooked.hooks.target().documented) == title.substr(0, 510));
      SetFocus(hooked.windows.frame);
      hooked.host.searches[2] = VK_F5;
      hooked.press({VK_F5});
      ids = hooked.afterInput();
      CHECK(std::count(ids.begin(), ids.end(), 192) == 1);
      CHECK(std::string(hooked.hooks.target().title) == title.substr(0, 255));
    }
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
  hooked.host.completion = 222;
  hooked.host.searches[0] = 5116;  // Ctrl+Shift+F5
  hooked.host.searches[3] = 2116;  // Alt+F5
  hooked.afterInput();

  const auto pressed = [&](std::initializer_list<BYTE> keys) {
    hooked.press(keys);
    return hooked.afterInput();
  };
  const std::vector<int> nothing;
  // No editor yet.
  CHECK(pressed({222}) == nothing);
  CHECK(pressed({VK_CONTROL, VK_SHIFT, VK_F5}) == nothing);
  const HWND editor = hooked.windows.editor("C:\\A.CPP:1");
  const HWND text = hooked.windows.editorText(editor);
  hooked.afterInput();
  CHECK(pressed({222}) == std::vector<int>{102});
  CHECK(pressed({VK_CONTROL, 222}) == nothing);
  // Keys are for the dialog that disables the frame, with its own fields.
  EnableWindow(hooked.windows.frame, FALSE);
  SetFocus(text);
  CHECK(pressed({222}) == nothing);
  CHECK(pressed({VK_CONTROL, VK_SHIFT, VK_F5}) == nothing);
  EnableWindow(hooked.windows.frame, TRUE);
  SetFocus(hooked.windows.frame);
  CHECK(pressed({222}) == nothing);
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
  hooked.windows.editorText(hooked.windows.editor("A.CPP"));
  hooked.afterInput();
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
  const auto paints_after_activation = [&] {
    SendMessageA(editor, WM_NCACTIVATE, TRUE, 0);
    ids = hooked.windows.commands();
    return std::count(ids.begin(), ids.end(), 111);
  };
  hooked.host.navigation = false;
  CHECK(paints_after_activation() == 0);
  hooked.host.navigation = true;
  ShowWindow(editor, SW_MINIMIZE);
  hooked.windows.drain();
  CHECK(paints_after_activation() == 0);
  ShowWindow(editor, SW_RESTORE);
  hooked.windows.drain();
  CHECK(paints_after_activation() == 1);
  // Too narrow for buttons.
  SetWindowPos(editor, nullptr, 0, 0, 2 * GetSystemMetrics(SM_CYCAPTION), 100, SWP_NOMOVE);
  hooked.windows.drain();
  CHECK(paints_after_activation() == 0);

  const auto open_and_close_project_view = [&] {
    DestroyWindow(
        hooked.windows.create(ideapi::kProjectClass, "", WS_CHILD, hooked.windows.client));
    ids = hooked.windows.commands();
    return std::count(ids.begin(), ids.end(), 103);
  };
  CHECK(open_and_close_project_view() == 0);
  hooked.host.watches = true;
  CHECK(open_and_close_project_view() == 2);

  // What belongs to the bar goes and comes with the frame.
  SendMessageA(hooked.windows.frame, WM_SIZE, SIZE_MINIMIZED, 0);
  CHECK(hooked.host.companions_shown == 0);
  SendMessageA(hooked.windows.frame, WM_SIZE, SIZE_RESTORED, 0);
  CHECK(hooked.host.companions_shown == 1);

  PostMessageA(hooked.windows.frame, WM_COMMAND, 13104, 0);
  PostMessageA(hooked.windows.bar, WM_COMMAND, 13104, 0);
  hooked.windows.drain();
  CHECK(hooked.host.auto_save_resets == 1);
  // As a shortcut says it.
  SendMessageA(hooked.windows.frame, WM_COMMAND, MAKEWPARAM(13104, 1), 0);
  CHECK(hooked.host.auto_save_resets == 2);
}
