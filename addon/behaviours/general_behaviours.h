// Small conveniences around the IDE's own windows: one instance only, windows out of
// the way during a make, the project window on opening, and saving every few minutes.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

namespace kesto {

class GeneralBehaviours {
 public:
  // Reads section "General". When one instance is wanted and the IDE is running
  // already, brings that one forward and ends this process.
  GeneralBehaviours();
  GeneralBehaviours(const GeneralBehaviours&) = delete;
  GeneralBehaviours& operator=(const GeneralBehaviours&) = delete;

  void makeStarted();
  // Puts back what the make's start took away.
  void makeEnded();
  void viewOnOpen() const;

  // Once a second.
  void timerTick();
  // The period until the next saving starts anew.
  void resetAutoSave() { ticks_ = 0; }

  void writeOptions() const;

 private:
  struct ClosedWindow {
    RECT place = {};        // on the screen
    HWND window = nullptr;  // null: none was closed
  };

  void clearMessages() const;
  static void close(const char* window_class, ClosedWindow& closed);
  void minimiseStatusBox();
  static void reopen(int command, const char* window_class, const ClosedWindow& closed);
  void autoSave();

  ClosedWindow messages_;
  ClosedWindow project_;
  int ticks_ = 0;
  HWND status_box_ = nullptr;  // minimised during a make
  int clear_on_make_;
  int close_on_make_;
  int close_project_on_make_;
  int iconize_status_on_make_;
  int view_on_open_;
  int timer_save_;
  int timer_count_;  // minutes
  int unique_;
};

extern GeneralBehaviours* generalBehaviours;

}  // namespace kesto
