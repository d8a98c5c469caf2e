// The "Task list" dialog, the one editor of a project's tasks. It stays open beside the IDE
// and writes the tasks when it closes, if something was changed in it. User-interface thread
// only.
#pragma once

#include <windows.h>

#include "addon/ide/modeless_dialogs.h"
#include "addon/tasks/known_dates.h"
#include "addon/tasks/system_dates.h"
#include "addon/tasks/task_columns.h"
#include "addon/tasks/task_form.h"
#include "addon/tasks/task_list.h"

namespace kesto {

class TaskDialog final : public ModelessDialog {
 public:
  // Both must outlive it.
  TaskDialog(FileSystem& files, TaskList& tasks);
  ~TaskDialog() { close(); }

  // Shows it over its owner, or brings the one that is open to the top.
  void open(HWND owner);
  // The types, or what may be done with an ended task, are others now.
  void settingsChanged();

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) override;
  void fill(HWND dialog);
  void offerTypes(HWND dialog) const;
  void command(HWND dialog, int id, int notification);
  void changeOrder(HWND dialog, int id);

  // The list: rows count in the view, -1 is none.
  Task* taskAt(int row) const;                                  // null when there is none
  void refresh(HWND dialog, int selected, bool force = false);  // force is enable's
  void refreshAndKeep(HWND dialog, const Task* task);

  // The edit area. enable switches it when it was the other way, or by force, by whether the
  // task of a row may be edited.
  void show(HWND dialog, int row);
  void enable(HWND dialog, int row, bool force);
  void showCounts(HWND dialog) const;
  void put(HWND dialog, const TaskForm& form);

  // A box or a mail lets the IDE go on, even end: whether this opening still is.
  static bool isStillOpen(unsigned opening);
  // These may find the dialog, the list or this object gone in the end.
  void create(HWND dialog);
  void remove(HWND dialog);
  void apply(HWND dialog);

  FileSystem& files_;
  TaskList& tasks_;
  SystemDateFormat system_dates_;
  KnownDates dates_{system_dates_};
  TaskColumns columns_;
  TaskForm shown_;  // the fields as they were filled
  bool modified_ = false;
  bool enabled_ = false;
  unsigned opening_ = 0;  // which of all openings this one is
};

// Of a combo box; the first where none is.
int selectedEntry(HWND dialog, int combo);
// What stands in the fields of the edit area.
TaskForm fieldsOf(HWND dialog);

// The lifecycle fills and clears the slot; null outside a session.
extern TaskDialog* taskDialog;

}  // namespace kesto
