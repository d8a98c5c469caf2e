// An editor of a small project under a test's hands, and answers for the questions it may
// be asked. One at a time; the thread that made it.
#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "doctest.h"
#include "tests/workbench/program_fixture.h"

namespace workbench {

// Answers message boxes in order and keeps their texts.
class Answers {
 public:
  explicit Answers(std::vector<int> answers) : answers_(std::move(answers)) {
    current_ = this;
    hook_ = SetWindowsHookExA(WH_CBT, watch, nullptr, GetCurrentThreadId());
  }
  ~Answers() {
    UnhookWindowsHookEx(hook_);
    current_ = nullptr;
    CHECK(texts.size() == answers_.size());
  }
  Answers(const Answers&) = delete;
  Answers& operator=(const Answers&) = delete;

  std::vector<std::string> texts;

 private:
  static LRESULT CALLBACK watch(int code, WPARAM w, LPARAM l) {
    HWND window = reinterpret_cast<HWND>(w);
    HWND label = code == HCBT_ACTIVATE ? GetDlgItem(window, 0xFFFF) : nullptr;
    if (label != nullptr) {
      char text[600] = {};
      GetWindowTextA(label, text, sizeof text);
      current_->texts.push_back(text);
      const std::size_t at = current_->texts.size() - 1;
      EndDialog(window, at < current_->answers_.size() ? current_->answers_[at] : IDCANCEL);
    }
    return CallNextHookEx(nullptr, code, w, l);
  }

  static inline Answers* current_ = nullptr;
  std::vector<int> answers_;
  HHOOK hook_ = nullptr;
};

class Desk {
 public:
  Desk() {
    REQUIRE(program.application.openPath(folder.path()));
    editor = program.application.editFile("a.cpp", 1);
    REQUIRE(editor != nullptr);
  }
  void setText(const std::string& text) {
    message(WM_SETFOCUS);
    editor->select(1, 1, 9999, 9999);
    editor->type(text);
    editor->setCaret(1, 1);
  }
  LRESULT message(UINT id, WPARAM w = 0, LPARAM l = 0) {
    return SendMessageA(editor->textWindow(), id, w, l);
  }
  void keys(const std::string& text) {
    for (const char c : text) {
      message(WM_CHAR, static_cast<unsigned char>(c));
    }
  }
  void press(WPARAM key, bool shift = false, bool control = false) {
    BYTE state[256] = {};
    state[VK_SHIFT] = shift ? 0x80 : 0;
    state[VK_CONTROL] = control ? 0x80 : 0;
    SetKeyboardState(state);
    message(WM_KEYDOWN, key);
    state[VK_SHIFT] = state[VK_CONTROL] = 0;
    SetKeyboardState(state);
  }
  std::string onDisk() {
    std::string bytes;
    DiskStore().read(folder.file("a.cpp"), kLargestText, &bytes);
    return bytes;
  }
  std::string place() {
    int line = 0;
    int column = 0;
    editor->caret(&line, &column);
    std::string result = std::to_string(line);
    result += ':';
    result += std::to_string(column);
    return result;
  }
  bool isOpen() { return program.application.findEditor("a.cpp") != nullptr; }
  void closeEditor() { SendMessageA(editor->window(), WM_CLOSE, 0, 0); }

  ScratchFolder folder;
  Program program;
  EditorWindow* editor = nullptr;
};

// What the editor's file holds at first.
inline const std::string kOnDisk = "first\r\nsecond word\r\nthird\r\n";

}  // namespace workbench
