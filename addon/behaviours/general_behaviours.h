// Small conveniences around the IDE's own windows: one instance only, windows out of
// the way during a make, the project window on opening, and saving every few minutes.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include "addon/behaviours/document_place.h"

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
  void clearMessages() const;
  void minimiseStatusBox();
  void reopenWindows();
  void autoSave();

  DocumentPlace messages_;        // as closed for a make; without a window none was closed
  DocumentPlace project_;         // likewise
  DocumentPlace shown_;           // the message window before a make's start showed it
  ActiveDocument active_before_;  // the active document before a make's start,
  ActiveDocument active_after_;   // and after it
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
