// Small conveniences around the IDE's own windows: one instance only, windows out of
// the way during a make, the project window on opening, and saving every few minutes.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include "addon/behaviours/document_place.h"
#include "addon/foundation/setting.h"

namespace kesto {

struct GeneralSettings {
  SettingSection section{"General"};
  IntegerSetting clear_on_make{section, "ClearOnMake", 1};
  IntegerSetting close_on_make{section, "CloseOnMake", 1};
  IntegerSetting close_project_on_make{section, "CloseProjectOnMake", 1};
  IntegerSetting iconize_status_on_make{section, "IconizeStatusOnMake", 1};
  IntegerSetting view_on_open{section, "ViewOnOpen", 0};
  IntegerSetting timer_save{section, "TimerSave", 1};
  IntegerSetting timer_count{section, "TimerCount", 5};  // minutes
  IntegerSetting unique{section, "Unic", 1};
};

class GeneralBehaviours {
 public:
  // Reads the settings. When one instance is wanted and the IDE is running
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

  GeneralSettings settings;

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
};

extern GeneralBehaviours* generalBehaviours;

}  // namespace kesto
