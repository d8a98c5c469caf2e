#include "addon/tasks/task_flash.h"

#include <string>

#include "addon/ide/current_project.h"
#include "addon/ide/dialog_place.h"
#include "addon/ide/find_window.h"
#include "addon/ide/help_file.h"
#include "addon/tasks/flash_ids.h"
#include "addon/tasks/flash_marker.h"
#include "addon/tasks/system_dates.h"

namespace kesto {

TaskFlash* taskFlash = nullptr;

TaskFlash::TaskFlash(HWND bar, FileSystem& files, TaskList& tasks)
    : bar_(bar), files_(files), tasks_(tasks) {}

void TaskFlash::postWhenDue() {
  const String marker = flashMarkerPath(projectFile());
  if (tasks_.settings.auto_flash.value != 0 &&
      !wasFlashShown(files_, marker, SystemDateFormat().shortDate(utcNow()))) {
    PostMessageA(bar_, WM_COMMAND, kCommandFlash, 0);
  }
}

// By the time that a command comes, the project may have closed.
void TaskFlash::showWhenDue() {
  String report;
  if (isProjectOpen() && tasks_.todayReport(report, utcNow(), SystemDateFormat()) != 0) {
    text_ = report;
    show();
  }
}

void TaskFlash::showOnDemand() {
  if (isProjectOpen()) {
    text_ = "";
    tasks_.todayReport(text_, utcNow(), SystemDateFormat());
    show();
  }
}

void TaskFlash::show() {
  markFlashShown(files_, flashMarkerPath(projectFile()), SystemDateFormat().shortDate(utcNow()));
  if (isOpen()) {
    fill(window());
    BringWindowToTop(window());
  } else if (create("flash", findFrame())) {
    // A dialog selects all of the field that it gives the keyboard to.
    SendDlgItemMessageA(window(), FLASH_TEXT, EM_SETSEL, 0, 0);
  }
}

void TaskFlash::fill(HWND dialog) {
  SetWindowTextA(dialog, ("Flash : " + longDate(utcNow())).c_str());
  SetDlgItemTextA(dialog, FLASH_TEXT, text_);
}

void TaskFlash::fit(HWND dialog) {
  RECT client = {};
  GetClientRect(dialog, &client);
  MoveWindow(GetDlgItem(dialog, FLASH_TEXT), 0, 0, client.right, client.bottom, TRUE);
}

INT_PTR TaskFlash::handle(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG:
      fill(dialog);
      centreOnOwner(dialog);
      fit(dialog);
      return TRUE;
    case WM_SIZE:
      fit(dialog);
      return TRUE;
    case WM_COMMAND:
      // Escape
      if (LOWORD(wParam) == IDCANCEL) {
        close();
      }
      return TRUE;
    default:
      return showHelpOn(message, kHelpFlash) ? TRUE : FALSE;
  }
}

}  // namespace kesto
