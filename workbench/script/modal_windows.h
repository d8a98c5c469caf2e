// The message boxes and dialogs that are open, and the answers a script has
// given. User-interface thread only.
#pragma once

#include <windows.h>

#include <deque>
#include <string>
#include <vector>

namespace workbench {

class EventLog;

class ModalWindows {
 public:
  // The log must outlive this.
  explicit ModalWindows(EventLog& log) : log_(log) {}

  // Called when a window is activated, and when one is destroyed.
  void noticeOpen(HWND window);
  void noticeClosed(HWND window);
  // Finds what opened without being activated, presses the buttons of boxes that
  // have an answer. Returns false, with the reason, when a box lacks the button.
  bool serve(std::string* fault);

  // An answer for the box that is open and has none, else for the next to come.
  // Returns false when it is no answer at all.
  bool answer(const std::string& word);
  size_t unusedAnswers() const { return answers_.size(); }

  // Whether the foremost message box waits for an answer; its text when asked.
  bool boxWaits(std::string* text) const;
  // The foremost open dialog, or null while a box is in front of it.
  HWND dialog() const;
  // The one opened or active last whose caption fits the pattern, or null.
  HWND dialogCalled(const std::string& caption) const;
  // Whether a box or a dialog has a loop of its own: one that holds its owner, or has none.
  bool anyModal() const;
  bool boxOpen() const;
  // Takes everything down, for a run that has failed.
  void dismissAll();

 private:
  struct Open {
    HWND window;
    bool is_box;
    bool pressed;
    std::string caption;
    std::string answer;
  };
  void emitBox(const Open& open);
  bool press(Open* open, std::string* fault);

  EventLog& log_;
  std::vector<Open> open_;  // the foremost last
  std::deque<std::string> answers_;
};

}  // namespace workbench
