// The columns of the task list's list box, in a font in which a row with two dates fits.
// User-interface thread only.
#pragma once

#include <windows.h>

#include "addon/ide/tab_rows.h"
#include "addon/tasks/task_date.h"

namespace kesto {

class TaskColumns {
 public:
  // Once for each opening of the dialog; the font stays good until the next.
  void setUp(HWND dialog, const DateFormat& format);
  void giveBack() const { rows_.giveBack(); }
  const TabRows& rows() const { return rows_; }

 private:
  TabRows rows_;
};

}  // namespace kesto
