// The task list's controls: its list of rows and its edit area.
#include <algorithm>
#include <charconv>
#include <string>

#include "addon/tasks/task_dialog.h"
#include "addon/tasks/task_ids.h"

namespace kesto {

namespace {

constexpr const char* kOrders[] = {"by state", "by start date", "by end date", "by priority",
                                   "by type"};
static_assert(std::size(kOrders) == kTaskOrders);
constexpr const char* kCounts[kTaskStates] = {"to &Do : %d", "&Coded : %d", "&Tested : %d",
                                              "&Ended: %d"};
// All that belongs to the task that is selected.
constexpr int kTaskControls[] = {TASKS_REMOVE, TASKS_NAME,  TASKS_TYPE, TASKS_STATE, TASKS_PRIORITY,
                                 TASKS_PUBLIC, TASKS_START, TASKS_END,  TASKS_TEXT,  TASKS_OK};
constexpr int kDigits = 10;

void addTo(HWND dialog, int combo, const char* text) {
  SendDlgItemMessageA(dialog, combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

void limit(HWND dialog, int id, int characters) {
  SendDlgItemMessageA(dialog, id, id == TASKS_TYPE ? CB_LIMITTEXT : EM_LIMITTEXT,
                      static_cast<WPARAM>(characters), 0);
}

void limitFields(HWND dialog) {
  for (const int id : {TASKS_NAME, TASKS_TYPE}) {
    limit(dialog, id, kTaskNameLimit);
  }
  for (const int id : {TASKS_START, TASKS_END}) {
    limit(dialog, id, kDateTextLimit);
  }
  limit(dialog, TASKS_PRIORITY, kDigits);
  limit(dialog, TASKS_TEXT, kTaskTextLimit);
}

std::string textOf(HWND dialog, int id) {
  const HWND control = GetDlgItem(dialog, id);
  std::string text(static_cast<size_t>(GetWindowTextLengthA(control)) + 1, '\0');
  text.resize(
      static_cast<size_t>(GetWindowTextA(control, text.data(), static_cast<int>(text.size()))));
  return text;
}

// 0 when there is none. GetDlgItemInt takes the greatest one for a failure on some systems.
std::uint32_t numberOf(HWND dialog, int id) {
  const std::string text = textOf(dialog, id);
  const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
  std::uint32_t number = 0;
  std::from_chars(text.data() + start, text.data() + text.size(), number);
  return number;
}

// Most controls show already what they are to show, and painting them takes time.
void setText(HWND dialog, int id, const std::string& text) {
  if (textOf(dialog, id) != text) {
    SetDlgItemTextA(dialog, id, text.c_str());
  }
}

// The keyboard would be lost in a control that is switched off.
void switchControls(HWND dialog, bool enabled) {
  const HWND focus = GetFocus();
  for (const int id : kTaskControls) {
    const HWND control = GetDlgItem(dialog, id);
    if (!enabled && (focus == control || (focus != nullptr && IsChild(control, focus)))) {
      SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, TASKS_LIST)),
                   TRUE);
    }
    EnableWindow(control, enabled);
  }
}

}  // namespace

void TaskDialog::fill(HWND dialog) {
  limitFields(dialog);
  for (int state = 0; state < kTaskStates; ++state) {
    CheckDlgButton(dialog, TASKS_SHOW_FIRST + state,
                   tasks_.show[state] != 0 ? BST_CHECKED : BST_UNCHECKED);
    addTo(dialog, TASKS_STATE, taskStateWord(state));
  }
  CheckDlgButton(dialog, TASKS_REVERSE, tasks_.reverse != 0 ? BST_CHECKED : BST_UNCHECKED);
  for (const char* order : kOrders) {
    addTo(dialog, TASKS_ORDER, order);
  }
  SendDlgItemMessageA(dialog, TASKS_ORDER, CB_SETCURSEL, static_cast<WPARAM>(tasks_.order), 0);
  offerTypes(dialog);
  columns_.setUp(dialog, dates_);
  refresh(dialog, std::min(0, tasks_.view().count() - 1), true);
  modified_ = false;
}

void TaskDialog::offerTypes(HWND dialog) const {
  SendDlgItemMessageA(dialog, TASKS_TYPE, CB_RESETCONTENT, 0, 0);
  for (int i = 0; i < tasks_.types.count(); ++i) {
    addTo(dialog, TASKS_TYPE, tasks_.types[i]->text());
  }
}

void TaskDialog::settingsChanged() {
  if (!isOpen()) {
    return;
  }
  const std::string type = textOf(window(), TASKS_TYPE);
  offerTypes(window());
  setText(window(), TASKS_TYPE, type);
  const HWND list = GetDlgItem(window(), TASKS_LIST);
  enable(window(), static_cast<int>(SendMessageA(list, LB_GETCURSEL, 0, 0)), true);
}

void TaskDialog::showCounts(HWND dialog) const {
  int counts[kTaskStates] = {};
  for (int i = 0; i < tasks_.count(); ++i) {
    ++counts[tasks_.at(i)->state];
  }
  for (int state = 0; state < kTaskStates; ++state) {
    char caption[40] = "";
    wsprintfA(caption, kCounts[state], counts[state]);
    setText(dialog, TASKS_SHOW_FIRST + state, caption);
  }
}

Task* TaskDialog::taskAt(int row) const {
  return row >= 0 && row < tasks_.view().count() ? tasks_.view()[row] : nullptr;
}

// The row is selected before the list is painted: to scroll there afterwards takes as long
// as painting does.
void TaskDialog::refresh(HWND dialog, int selected, bool force) {
  const HWND list = GetDlgItem(dialog, TASKS_LIST);
  const Tableau<Task>& view = tasks_.view();
  SendMessageA(list, WM_SETREDRAW, FALSE, 0);
  columns_.rows().replace(view.count(),
                          [&](int row, std::string& text) { view[row]->appendRow(text, dates_); });
  SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
  SendMessageA(list, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(list, nullptr, TRUE);
  showCounts(dialog);
  show(dialog, selected);
  enable(dialog, selected, force);
}

// After a change: the task stays selected while it is in view, else the first is.
void TaskDialog::refreshAndKeep(HWND dialog, const Task* task) {
  tasks_.rebuildView();
  const int row = task != nullptr ? tasks_.view().indexOf(task) : kErrTab;
  refresh(dialog, row != kErrTab ? row : std::min(0, tasks_.view().count() - 1));
}

void TaskDialog::show(HWND dialog, int row) {
  if (const Task* task = taskAt(row)) {
    put(dialog, formOf(*task, dates_));
  }
}

void TaskDialog::put(HWND dialog, const TaskForm& form) {
  setText(dialog, TASKS_NAME, form.name);
  setText(dialog, TASKS_TYPE, form.type);
  SendDlgItemMessageA(dialog, TASKS_STATE, CB_SETCURSEL, static_cast<WPARAM>(form.state), 0);
  setText(dialog, TASKS_PRIORITY, std::to_string(form.priority));
  CheckDlgButton(dialog, TASKS_PUBLIC, form.is_public ? BST_CHECKED : BST_UNCHECKED);
  setText(dialog, TASKS_START, form.start);
  setText(dialog, TASKS_END, form.end);
  setText(dialog, TASKS_TEXT, form.text);
  // A field may hold a text otherwise than it was given.
  shown_ = fieldsOf(dialog);
}

int selectedEntry(HWND dialog, int combo) {
  return std::max(0, static_cast<int>(SendDlgItemMessageA(dialog, combo, CB_GETCURSEL, 0, 0)));
}

TaskForm fieldsOf(HWND dialog) {
  TaskForm form;
  form.name = textOf(dialog, TASKS_NAME);
  form.type = textOf(dialog, TASKS_TYPE);
  form.start = textOf(dialog, TASKS_START);
  form.end = textOf(dialog, TASKS_END);
  form.text = textOf(dialog, TASKS_TEXT);
  form.state = selectedEntry(dialog, TASKS_STATE);
  form.priority = numberOf(dialog, TASKS_PRIORITY);
  form.is_public = IsDlgButtonChecked(dialog, TASKS_PUBLIC) == BST_CHECKED;
  return form;
}

void TaskDialog::enable(HWND dialog, int row, bool force) {
  const Task* task = taskAt(row);
  const bool read_only =
      tasks_.settings.ended_read_only.value != 0 && task != nullptr && task->state == kEnded;
  const bool enabled = tasks_.view().count() > 0 && !read_only;
  if (force || enabled != enabled_) {
    enabled_ = enabled;
    switchControls(dialog, enabled);
  }
  if (tasks_.view().count() == 0) {
    put(dialog, {});
  }
}

}  // namespace kesto
