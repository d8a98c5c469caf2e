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
  unsigned completion = 0;
  unsigned searches[4] = {};
  int companions_shown = -1;

  bool navigationEnabled() const override { return navigation; }
  int titleButtonAt(HWND, POINT&) const override { return -1; }
  unsigned completionKey() const override { return completion; }
  unsigned searchKey(int search) const override { return searches[search]; }
  bool barFollowsFrame() const override { return true; }
  bool barWatchesProjectView() const override { return false; }
  bool barStaysOnTop() const override { return false; }
  void showCompanions(bool shown) override { companions_shown = shown ? 1 : 0; }
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
    if (wParam == VK_F7) {
      reinterpret_cast<kesto::HookSet*>(GetWindowLongA(window, GWL_USERDATA))->stopKeyCapture();
    }
    return 0;
  }
  return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

TEST_CASE("a title is not clicked while a popup is open or its editor is disabled") {
  Hooked hooked;
  const HWND editor = hooked.windows.editor("C:\\SRC\\A.CPP");
  hooked.afterInput();
  const auto clicked = [&] {
    hooked.click(editor, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    const std::vector<int> ids = hooked.afterInput();
    return std::count(ids.begin(), ids.end(), 197);
  };
  CHECK(clicked() == 1);
  hooked.hooks.suspend(true);
  CHECK(clicked() == 0);
  hooked.hooks.suspend(false);
  EnableWindow(editor, FALSE);
  CHECK(clicked() == 0);
}

TEST_CASE("the completion key is for the text of an editor that can be used") {
  Hooked hooked;
  hooked.host.completion = 222;
  hooked.host.searches[3] = 2116;  // Alt+F5
  hooked.afterInput();
  const auto pressed = [&](std::initializer_list<BYTE> keys) {
    hooked.press(keys);
    return hooked.afterInput();
  };
  const std::vector<int> nothing;
  CHECK(pressed({222}) == nothing);  // no editor yet
  const std::string title = "C:\\" + std::string(508, 'A');
  const HWND text = hooked.windows.editorText(hooked.windows.editor(title.c_str()));
  hooked.afterInput();
  CHECK(pressed({222}) == std::vector<int>{102});
  CHECK(pressed({VK_CONTROL, 222}) == nothing);
  // Keys are for the dialog that disables the frame, with its own fields.
  EnableWindow(hooked.windows.frame, FALSE);
  SetFocus(text);
  CHECK(pressed({222}) == nothing);
  EnableWindow(hooked.windows.frame, TRUE);
  SetFocus(hooked.windows.frame);
  CHECK(pressed({222}) == nothing);
  hooked.afterInput();
  hooked.press({VK_MENU, VK_F5});
  CHECK(hooked.afterInput() == std::vector<int>{193});
  // A title longer than its slot is cut, not written past it.
  CHECK(std::string(hooked.hooks.target().title) == title.substr(0, 255));
}

TEST_CASE("a capturing window gets every key but the modifiers") {
  Hooked hooked;
  const HWND capture = hooked.windows.create("KestoTestBar", "", WS_POPUP, nullptr);
  SetWindowLongA(capture, GWL_WNDPROC, reinterpret_cast<LONG>(captureProcedure));
  hooked.host.completion = 222;
  hooked.afterInput();
  captured.clear();
  // Held down since before, it only repeats.
  keybd_event(VK_F6, static_cast<BYTE>(MapVirtualKeyA(VK_F6, 0)), 0, 0);
  hooked.afterInput();
  hooked.hooks.startKeyCapture(capture);
  hooked.press({VK_F6});
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
  // The key that ends the capture, held down and let go after another, is the capture's.
  SetWindowLongA(capture, GWL_USERDATA, reinterpret_cast<LONG>(&hooked.hooks));
  hooked.hooks.startKeyCapture(capture);
  hooked.windows.keys.clear();
  keybd_event(VK_F7, static_cast<BYTE>(MapVirtualKeyA(VK_F7, 0)), 0, 0);
  hooked.press({VK_F7, 'A'});
  hooked.afterInput();
  CHECK(hooked.windows.keys == std::vector<WPARAM>{'A', 'A', VK_F13, VK_F13});
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

  // What belongs to the bar goes and comes with the frame.
  SendMessageA(hooked.windows.frame, WM_SIZE, SIZE_MINIMIZED, 0);
  CHECK(hooked.host.companions_shown == 0);
  SendMessageA(hooked.windows.frame, WM_SIZE, SIZE_RESTORED, 0);
  CHECK(hooked.host.companions_shown == 1);
}
