#include "addon/groupware/group_dialog.h"

#include <algorithm>
#include <cstring>

#include "addon/foundation/message_box.h"
#include "addon/groupware/group_ids.h"
#include "addon/groupware/groupware_project.h"
#include "addon/groupware/groupware_settings.h"
#include "addon/ide/copy_files_win.h"
#include "addon/ide/copy_run.h"
#include "addon/ide/current_project.h"
#include "addon/ide/dialog_place.h"
#include "addon/ide/environment.h"
#include "addon/ide/progress_bar.h"
#include "addon/ide/search_watch.h"
#include "addon/ide/status_line.h"
#include "addon/ide/wait_cursor.h"
#include "addon/mail/mail.h"

namespace kesto {
namespace {

constexpr char kErrorCaption[] = "Kesto AddOn error";
constexpr int kUserName = 100;  // bytes, the terminator included
constexpr WORD kHelp = 65535;

// Files whose copies are told by the bar and by boxes.
class ToldFiles : public GroupFilesWin {
 public:
  ToldFiles(std::uint64_t total, HWND owner) : run_(files_, bar_, total, owner) {}
  // Of the next file, as it is counted in the total.
  void expect(std::int64_t size) { size_ = static_cast<std::uint64_t>(size); }
  bool copy(const char* path, const char* new_path) override {
    return run_.copy(path, new_path, size_);
  }
  bool abandoned() const { return run_.abandoned(); }

 private:
  CopyFilesWin files_;
  ProgressBar bar_;
  CopyRun run_;
  std::uint64_t size_ = 0;
};

// Straight to the list's procedure: the hooks of the thread look at every message that is
// sent, and of thousands that is felt.
LRESULT tell(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(list, GWLP_WNDPROC));
  return CallWindowProcA(procedure, list, message, wParam, lParam);
}

std::string userName() {
  char name[kUserName] = "";
  DWORD size = sizeof name;
  return GetUserNameA(name, &size) != FALSE ? name : "";
}

}  // namespace

// The list is disabled while its rows are rewritten, and has the keyboard again if it had.
class GroupDialog::Enabling {
 public:
  explicit Enabling(HWND list) : list_(list), focused_(GetFocus() == list) {
    EnableWindow(list_, FALSE);
    SendMessageA(list_, WM_SETREDRAW, FALSE, 0);
  }
  ~Enabling() {
    SendMessageA(list_, WM_SETREDRAW, TRUE, 0);
    EnableWindow(list_, TRUE);
    if (focused_) {
      SetFocus(list_);
    }
    InvalidateRect(list_, nullptr, TRUE);
  }
  Enabling(const Enabling&) = delete;
  Enabling& operator=(const Enabling&) = delete;

 private:
  HWND list_;
  bool focused_;
};

GroupDialog::GroupDialog(GroupExchange& exchange, GroupRoots roots, bool (*mails)())
    : exchange_(exchange),
      roots_(std::move(roots)),
      mails_(mails),
      project_(projectFile()),
      name_(projectName()) {}

void GroupDialog::run(HWND owner) {
  if (addonEnvironment != nullptr) {
    DialogBoxParamA(addonEnvironment->instance, exchange_.look().dialog, owner, procedure,
                    reinterpret_cast<LPARAM>(this));
  }
}

INT_PTR CALLBACK GroupDialog::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    reinterpret_cast<GroupDialog*>(lParam)->begin(dialog);
    return TRUE;
  }
  auto* self = reinterpret_cast<GroupDialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
  if (message == WM_DESTROY && self != nullptr) {
    self->end();
  }
  if (message != WM_COMMAND || self == nullptr || self->busy_) {
    return FALSE;
  }
  if (HIWORD(wParam) == BN_CLICKED && LOWORD(wParam) != kHelp) {
    self->command(LOWORD(wParam));
  }
  return TRUE;
}

void GroupDialog::begin(HWND dialog) {
  dialog_ = dialog;
  list_ = GetDlgItem(dialog, GROUP_LIST);
  if (groupwareProject != nullptr) {
    groupwareProject->setDialog(dialog);
  }
  const ExchangeLook& look = exchange_.look();
  columns_.setUp(list_, look.stops, look.row);
  const std::string tabs(std::count(look.row, look.row + strlen(look.row), '\t'), '\t');
  const auto font = static_cast<WPARAM>(SendMessageA(list_, WM_GETFONT, 0, 0));
  for (std::size_t column = 0; column <= tabs.size(); ++column) {
    const int heading = GROUP_HEADINGS + static_cast<int>(column);
    SendDlgItemMessageA(dialog, heading, WM_SETFONT, font, FALSE);
    columns_.placeHeading(heading, tabs.substr(0, column));
  }
  centreOnOwner(dialog);
  busy_ = true;
  fill();
  busy_ = false;
}

void GroupDialog::end() const {
  columns_.giveBack();
  if (groupwareProject != nullptr) {
    groupwareProject->setDialog(nullptr);
  }
}

void GroupDialog::command(int id) {
  switch (id) {
    case IDCANCEL:
      EndDialog(dialog_, 0);
      break;
    case GROUP_PERFORM:
      busy_ = true;
      perform();
      busy_ = false;
      break;
    default:
      press(id);
  }
}

void GroupDialog::fill() {
  const WaitCursor waiting;
  if (groupwareSettings == nullptr) {
    return;
  }
  GroupFilesWin files;
  server_ = serverState(files, roots_.server);
  SearchWatch watch("Groupware: listing");
  exchange_.fill(files, roots_, groupwareSettings->filters().view(), &watch);
  watch.finished(watch.stopped() ? "Groupware: stopped, not all files are listed" : " ");
  showRows();
}

std::vector<std::string> GroupDialog::rowTexts() const {
  std::vector<std::string> texts;
  for (int i = 0; i < exchange_.count(); ++i) {
    texts.push_back(exchange_.rowText(i, roots_));
  }
  return texts;
}

void GroupDialog::showRows() {
  const Enabling rewriting(list_);
  tell(list_, LB_RESETCONTENT, 0, 0);
  int extent = 0;
  for (const std::string& row : rowTexts()) {
    tell(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
    extent = std::max(extent, columns_.extentOf(row));
  }
  tell(list_, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(extent), 0);
}

std::vector<int> GroupDialog::selectedRows() const {
  const LRESULT count = tell(list_, LB_GETSELCOUNT, 0, 0);
  std::vector<int> rows(static_cast<std::size_t>(std::max<LRESULT>(count, 0)));
  tell(list_, LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data()));
  return rows;
}

// What is not selected stays so, where every row was meant.
void GroupDialog::press(int button) {
  const std::vector<int> selected = selectedRows();
  const std::vector<std::string> before = rowTexts();
  if (!exchange_.press(button, selected)) {
    return;
  }
  const LRESULT top = tell(list_, LB_GETTOPINDEX, 0, 0);
  const LRESULT caret = tell(list_, LB_GETCARETINDEX, 0, 0);
  const Enabling rewriting(list_);
  const std::vector<std::string> after = rowTexts();
  for (std::size_t row = 0; row < after.size(); ++row) {
    if (after[row] != before[row]) {
      tell(list_, LB_DELETESTRING, row, 0);
      tell(list_, LB_INSERTSTRING, row, reinterpret_cast<LPARAM>(after[row].c_str()));
    }
  }
  for (const int row : selected) {
    tell(list_, LB_SETSEL, TRUE, row);
  }
  tell(list_, LB_SETCARETINDEX, static_cast<WPARAM>(caret), FALSE);
  tell(list_, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
}

std::vector<int> GroupDialog::selectChosen() {
  std::vector<int> rows;
  const Enabling rewriting(list_);
  tell(list_, LB_SETSEL, FALSE, -1);
  for (int i = 0; i < exchange_.count(); ++i) {
    if (exchange_.at(i).chosen()) {
      rows.push_back(i);
      tell(list_, LB_SETSEL, TRUE, i);
    }
  }
  return rows;
}

void GroupDialog::perform() {
  const std::vector<int> rows = selectChosen();
  if (rows.empty()) {
    showMessage(dialog_, "Nothing to do !", kErrorCaption, kMessageIconHand);
    return;
  }
  const Outcome outcome = exchangeRows(rows);
  if (groupwareProject == nullptr) {
    EndDialog(dialog_, 0);
    return;
  }
  fill();
  if (!outcome.failures.empty()) {
    showMessage(dialog_, failuresText(outcome.failures).c_str(), "Kesto Addon error",
                kMessageIconHand);
  }
  // The session may have ended below that box.
  if (groupwareProject != nullptr && !outcome.left_alone.empty()) {
    showMessage(dialog_, leftAloneText(outcome.left_alone).c_str(), "Warning",
                kMessageIconExclamation);
  }
  mailReport(outcome.report);
}

GroupDialog::Outcome GroupDialog::exchangeRows(const std::vector<int>& rows) {
  std::uint64_t total = 0;
  for (const int row : rows) {
    total += static_cast<std::uint64_t>(exchange_.at(row).size);
  }
  const WaitCursor waiting;
  ToldFiles files(total, dialog_);
  Transfer transfer(files, roots_, server_, userName());
  for (const int row : rows) {
    files.expect(exchange_.at(row).size);
    exchange_.transfer(row, transfer);
    // The box of a copy that failed may have seen the session end.
    if (files.abandoned() || groupwareProject == nullptr) {
      break;
    }
  }
  return {transfer.report(), transfer.changed(), transfer.failures()};
}

// The recipients are the open project's.
void GroupDialog::mailReport(const std::string& report) const {
  const bool wanted = groupwareSettings != nullptr && mails_() && !report.empty();
  if (!wanted || mail == nullptr || mail->recipients().count() == 0 || !isProjectOpen() ||
      projectFile() != project_) {
    return;
  }
  const std::string subject = exchange_.look().subject + name_;
  if (!mail->send(dialog_, subject.c_str(), report.c_str(), nullptr) &&
      groupwareProject != nullptr) {
    showStatus("MAPI SendMail missed !");
  }
}

}  // namespace kesto
