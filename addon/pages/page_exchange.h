// What a page's controls show and what stands behind them, said once by the page and gone
// through for each purpose: filling the controls, storing what they hold, finding a control's
// help text, telling whether a notification is a change. User-interface thread.
#pragma once

#include <windows.h>

#include <string>

namespace kesto {

class PageExchange {
 public:
  enum class Purpose { kFill, kStore, kHelp, kChange };

  // Fills the dialog's controls, or stores what they hold.
  static PageExchange filling(HWND dialog) { return {Purpose::kFill, dialog, 0, 0}; }
  static PageExchange storing(HWND dialog) { return {Purpose::kStore, dialog, 0, 0}; }
  // Finds the help text of one control.
  static PageExchange helping(int control) { return {Purpose::kHelp, nullptr, control, 0}; }
  // Finds whether a notification of a control is a change of what it holds.
  static PageExchange changing(int control, int notification) {
    return {Purpose::kChange, nullptr, control, notification};
  }

  // A check box: 1 or 0.
  void flag(int control, const char* help, int& value);
  // A radio button that stands for one value of several.
  void choice(int control, const char* help, int& value, int chosen);
  // An edit field with a number, which may be negative. A text that is none, or beyond an
  // int, leaves the value as it was.
  void number(int control, const char* help, int& value);
  // An edit field of so many characters at most.
  void text(int control, const char* help, std::string& value, std::size_t limit);
  // A control without a value of its own here.
  void plain(int control, const char* help);
  // Only while filling: greys a control.
  void enable(int control, bool enabled) const;

  bool fills() const { return purpose_ == Purpose::kFill; }
  bool stores() const { return purpose_ == Purpose::kStore; }
  HWND dialog() const { return dialog_; }
  // Null when no control of that id was met.
  const char* helpText() const { return help_; }
  bool changed() const { return changed_; }

 private:
  PageExchange(Purpose purpose, HWND dialog, int control, int notification)
      : purpose_(purpose), dialog_(dialog), control_(control), notification_(notification) {}

  void meet(int control, const char* help, int change);

  Purpose purpose_;
  HWND dialog_;
  int control_;
  int notification_;
  const char* help_ = nullptr;
  bool changed_ = false;
};

// The text of a control. The number that it is, or false.
std::string controlText(HWND dialog, int control);
bool controlNumber(HWND dialog, int control, int& value);

}  // namespace kesto
