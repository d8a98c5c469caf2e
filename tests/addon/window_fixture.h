// Windows of the IDE's classes, bare, for the code that looks for them.
#pragma once

#include <windows.h>

#include <vector>

#include "ideapi/ide_identifiers.h"

class WindowFixture {
 public:
  WindowFixture() {
    for (const char* name : {ideapi::kFrameClass, ideapi::kMdiClientClass, ideapi::kEditorClass,
                             ideapi::kEditorTextClass, ideapi::kProjectClass, "KestoTestBar"}) {
      WNDCLASSA window_class = {};
      window_class.lpfnWndProc = DefWindowProcA;
      window_class.hInstance = GetModuleHandleA(nullptr);
      window_class.lpszClassName = name;
      RegisterClassA(&window_class);
    }
    frame = create(ideapi::kFrameClass, "Borland C++", WS_OVERLAPPEDWINDOW | WS_VISIBLE, nullptr);
    client = create(ideapi::kMdiClientClass, "", WS_CHILD | WS_VISIBLE, frame);
    bar = create("KestoTestBar", "", WS_POPUP | WS_VISIBLE, nullptr);
    // Out of the frame's way, for clicks to reach it.
    SetWindowPos(bar, nullptr, 500, 500, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SetForegroundWindow(frame);
    SetFocus(frame);
    drain();
  }
  ~WindowFixture() {
    DestroyWindow(bar);
    DestroyWindow(frame);
    drain();
  }
  WindowFixture(const WindowFixture&) = delete;
  WindowFixture& operator=(const WindowFixture&) = delete;

  HWND create(const char* window_class, const char* title, DWORD style, HWND parent) {
    return CreateWindowExA(0, window_class, title, style, 40, 60, 400, 300, parent, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
  }
  HWND editor(const char* title) {
    const HWND window =
        create(ideapi::kEditorClass, title, WS_CHILD | WS_CAPTION | WS_VISIBLE, client);
    SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return window;
  }

  // The keyboard is in it.
  HWND editorText(HWND editor) {
    const HWND text = create(ideapi::kEditorTextClass, "", WS_CHILD | WS_VISIBLE, editor);
    SetFocus(text);
    return text;
  }

  // Ids of the commands that reached the bar since the last call.
  std::vector<int> commands() {
    std::vector<int> ids;
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.hwnd == bar && message.message == WM_COMMAND) {
        ids.push_back(static_cast<int>(message.wParam));
        last_lparam = message.lParam;
      } else if (message.message == WM_KEYDOWN || message.message == WM_KEYUP) {
        keys.push_back(message.wParam);
        saw_key_up = message.message == WM_KEYUP ? message.wParam : saw_key_up;
      } else if (message.message == WM_NCMOUSEMOVE) {
        last_title_move = message.lParam;
      }
      DispatchMessageA(&message);
    }
    return ids;
  }
  void drain() { commands(); }

  HWND frame;
  HWND client;
  HWND bar;
  LPARAM last_lparam = 0;
  WPARAM saw_key_up = 0;
  std::vector<WPARAM> keys;  // each that went down or up
  LPARAM last_title_move = 0;
};
