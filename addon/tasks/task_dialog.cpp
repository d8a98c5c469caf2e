#include "addon/tasks/task_dialog.h"

#include <algorithm>
#include <string>

#include "addon/foundation/message_box.h"
#include "addon/ide/current_project.h"
#include "addon/ide/dialog_place.h"
#include "addon/ide/help_file.h"
#include "addon/ide/status_line.h"
#include "addon/mail/mail.h"
#include "addon/tasks/notifications.h"
#include "addon/tasks/task_ids.h"

namespace kesto {

TaskDialog* taskDialog = nullptr;

namespace {

constexpr char kTemplate[] = "taches";
constexpr char kErrorTitle[] = "Kesto AddOn error";
constexpr char kWarningTitle[] = "Warning";

// Counts in all sessions, so that no opening is taken for another.
unsigned openings = 0;

int selectedRow(HWND dialog) {
  return static_cast<int>(SendDlgItemMessageA(dialog, TASKS_LIST, LB_GETCURSEL, 0, 0));
}

void mailEnd(HWND dialog, const Task& task) {
  const std::string subject = endOfTaskSubject(task, projectName());
  const bool sent =
      mail != nullptr && mail->send(dialog, subject.c_str(), task.text.text(), nullptr);
  // A session that has ended meanwhile has nobody to tell.
  if (!sent && taskDialog != nullptr) {
    showMessage(taskDialog->window(), "MAPI SendMail missed !", kErrorTitle, kMessageIconHand);
  }
}

void keepForDelivery(FileSystem& files, HWND dialog, const Task& task) {
  if (!appendNotification(files, notificationPath(projectFile()), task)) {
    showMessage(dialog, "Impossible to store informations for future mail", kErrorTitle,
                kMessageIconExclamation);
  }
}

}  // namespace

TaskDialog::TaskDialog(FileSystem& files, TaskList& tasks) : files_(files), tasks_(tasks) {}

bool TaskDialog::isStillOpen(unsigned opening) {
  return taskDialog != nullptr && taskDialog->isOpen() && taskDialog->opening_ == opening;
}

void TaskDialog::open(HWND owner) {
  if (isOpen()) {
    SetWindowPos(window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    return;
  }
  if (!isProjectOpen()) {
    // What is written then would be kept nowhere.
    showStatus("No project is open");
    return;
  }
  modified_ = false;
  opening_ = ++openings;
  ModelessDialog::create(kTemplate, owner);
}

INT_PTR TaskDialog::handle(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_INITDIALOG:
      fill(dialog);
      centreOnOwner(dialog);
      return TRUE;
    case WM_COMMAND:
      command(dialog, LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_WININICHANGE:
      dates_.forget();
      return FALSE;
    case WM_DESTROY:
      columns_.giveBack();
      if (modified_) {
        tasks_.save();
      }
      // A closed dialog is not told of another way to write days.
      dates_.forget();
      return TRUE;
    default:
      return showHelpOn(message, kHelpTaskList) ? TRUE : FALSE;
  }
}

void TaskDialog::command(HWND dialog, int id, int notification) {
  switch (id) {
    case IDCANCEL:
      close();
      break;
    case TASKS_ORDER:
      if (notification == CBN_SELCHANGE) {
        changeOrder(dialog, id);
      }
      break;
    case TASKS_LIST:
      if (notification == LBN_SELCHANGE) {
        show(dialog, selectedRow(dialog));
        enable(dialog, selectedRow(dialog), false);
      }
      break;
    case TASKS_CREATE:
      create(dialog);
      break;
    case TASKS_REMOVE:
      remove(dialog);
      break;
    case TASKS_OK:
      apply(dialog);
      break;
    default:
      if (notification == BN_CLICKED &&
          (id == TASKS_REVERSE || (id >= TASKS_SHOW_FIRST && id <= TASKS_SHOW_LAST))) {
        changeOrder(dialog, id);
      }
      break;
  }
}

// Takes over which tasks are to be shown, and in which order.
void TaskDialog::changeOrder(HWND dialog, int id) {
  const Task* selected = taskAt(selectedRow(dialog));
  if (id == TASKS_ORDER) {
    tasks_.order = selectedEntry(dialog, id);
  } else if (id == TASKS_REVERSE) {
    tasks_.reverse = IsDlgButtonChecked(dialog, id) == BST_CHECKED;
  } else {
    tasks_.show[id - TASKS_SHOW_FIRST] = IsDlgButtonChecked(dialog, id) == BST_CHECKED;
  }
  modified_ = true;
  refreshAndKeep(dialog, selected);
}

void TaskDialog::create(HWND dialog) {
  Task* const task = new Task(localNow());
  tasks_.append(task);
  modified_ = true;
  if (tasks_.show[task->state] == 0) {
    tasks_.show[task->state] = 1;
    CheckDlgButton(dialog, TASKS_SHOW_FIRST + task->state, BST_CHECKED);
  }
  refreshAndKeep(dialog, task);
}

void TaskDialog::remove(HWND dialog) {
  const int row = selectedRow(dialog);
  Task* const task = taskAt(row);
  if (task == nullptr) {
    return;
  }
  const unsigned opening = opening_;
  const std::string question = "Remove " + std::string(task->name.view()) + " ?";
  const int answer =
      showMessage(dialog, question.c_str(), kWarningTitle, kMessageYesNo | kMessageIconQuestion);
  if (answer != kAnswerYes || !isStillOpen(opening) || tasks_.indexOf(task) == kErrTab) {
    return;
  }
  modified_ = true;
  tasks_.removeTask(task);
  tasks_.rebuildView();
  refresh(dialog, std::min(row, tasks_.view().count() - 1));
}

void TaskDialog::apply(HWND dialog) {
  modified_ = true;
  const int row = selectedRow(dialog);
  Task* const task = taskAt(row);
  if (task == nullptr) {
    return;
  }
  const bool had_ended = task->state == kEnded;
  if (had_ended && tasks_.settings.ended_read_only.value != 0) {
    const unsigned opening = opening_;
    showMessage(dialog, "You cannot modify an ended task (read-only) !", kWarningTitle,
                kMessageIconExclamation);
    if (isStillOpen(opening)) {
      show(dialog, row);
    }
    return;
  }
  takeForm(*task, shown_, fieldsOf(dialog), {isDayFirst(dates_), localNow()});
  refreshAndKeep(dialog, task);
  if (had_ended || task->state != kEnded || tasks_.settings.mail_on.value == 0 ||
      task->is_public == 0) {
    return;
  }
  // The list may be another when a mail or a box is done with.
  const Task ended(*task);
  if (tasks_.settings.key_is_delivery.value != 0) {
    keepForDelivery(files_, dialog, ended);
  } else {
    mailEnd(dialog, ended);
  }
}

}  // namespace kesto
