// The flash: a window with the report of what is due today. It comes by itself once a day
// for each project, as a file beside the project tells, and by hand. Days are those of UTC.
// One object, created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include "addon/foundation/file_system.h"
#include "addon/foundation/string.h"
#include "addon/ide/modeless_dialogs.h"
#include "addon/tasks/task_list.h"

namespace kesto {

// The bar's command that comes when a project has opened.
inline constexpr int kCommandFlash = 172;

class TaskFlash final : public ModelessDialog {
 public:
  // All that is given must outlive it.
  TaskFlash(HWND bar, FileSystem& files, TaskList& tasks);
  ~TaskFlash() { close(); }

  // While a project opens: posts the command, unless the flash is off or was shown today.
  void postWhenDue();
  // The command: shows what is due, if anything is.
  void showWhenDue();
  // Shows the report whatever it says.
  void showOnDemand();

 private:
  void show();
  void fill(HWND dialog);
  static void fit(HWND dialog);
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) override;

  HWND bar_;
  FileSystem& files_;
  TaskList& tasks_;
  String text_;
};

// Null outside a session.
extern TaskFlash* taskFlash;

}  // namespace kesto
