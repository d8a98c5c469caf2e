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
#include "addon/ide/help_file.h"
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
  ToldFiles(std::uint64_t total, HWND owner) : owner_(owner), run_(files_, bar_, total, owner) {}
  // Of the next file, as it is counted in the total.
  void expect(std::int64_t size) { size_ = static_cast<std::uint64_t>(size); }
  bool copy(const char* path, const char* new_path) override {
    return run_.copy(path, new_path, size_);
  }
  void tellRefused(const char* path) override {
    showMessage(owner_, (std::string("Error in creating file ") + path).c_str(),
                "Kesto Addon error", kMessageIconHand);
  }
  bool abandoned() const { return run_.abandoned(); }

 private:
  HWND owner_;
  CopyFilesWin files_;
  ProgressBar bar_;
  CopyRun run_;
  std::uint64_t size_ = 0;
};

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
  if (self != nullptr && showHelpOn(message, self->exchange_.look().help)) {
    return TRUE;
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
  rows_.setUp(list_, look.stops, look.row);
  const std::string tabs(std::count(look.row, look.row + strlen(look.row), '\t'), '\t');
  const auto font = static_cast<WPARAM>(SendMessageA(list_, WM_GETFONT, 0, 0));
  for (std::size_t column = 0; column <= tabs.size(); ++column) {
    const int heading = GROUP_HEADINGS + static_cast<int>(column);
    SendDlgItemMessageA(dialog, heading, WM_SETFONT, font, FALSE);
    rows_.placeHeading(heading, tabs.substr(0, column));
  }
  centreOnOwner(dialog);
  busy_ = true;
  fill();
  busy_ = false;
}

void GroupDialog::end() const {
  rows_.giveBack();
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
  // A copy: the session may end while they are looked for.
  const std::string filters = groupwareSettings->filters.value;
  exchange_.fill(files, roots_, filters, &watch);
  if (groupwareProject == nullptr) {
    return;
  }
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
  rows_.replace(exchange_.count(),
                [&](int row, std::string& text) { text = exchange_.rowText(row, roots_); });
}

std::vector<int> GroupDialog::selectedRows() const {
  const LRESULT count = rows_.tell(LB_GETSELCOUNT);
  std::vector<int> rows(static_cast<std::size_t>(std::max<LRESULT>(count, 0)));
  rows_.tell(LB_GETSELITEMS, rows.size(), reinterpret_cast<LPARAM>(rows.data()));
  return rows;
}

// What is not selected stays so, where every row was meant.
void GroupDialog::press(int button) {
  const std::vector<int> selected = selectedRows();
  const std::vector<std::string> before = rowTexts();
  if (!exchange_.press(button, selected)) {
    return;
  }
  const LRESULT top = rows_.tell(LB_GETTOPINDEX);
  const LRESULT caret = rows_.tell(LB_GETCARETINDEX);
  const Enabling rewriting(list_);
  const std::vector<std::string> after = rowTexts();
  for (std::size_t row = 0; row < after.size(); ++row) {
    if (after[row] != before[row]) {
      rows_.tell(LB_DELETESTRING, row, 0);
      rows_.tell(LB_INSERTSTRING, row, reinterpret_cast<LPARAM>(after[row].c_str()));
    }
  }
  for (const int row : selected) {
    rows_.tell(LB_SETSEL, TRUE, row);
  }
  rows_.tell(LB_SETCARETINDEX, static_cast<WPARAM>(caret), FALSE);
  rows_.tell(LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
}

std::vector<int> GroupDialog::selectChosen() {
  std::vector<int> rows;
  const Enabling rewriting(list_);
  rows_.tell(LB_SETSEL, FALSE, -1);
  for (int i = 0; i < exchange_.count(); ++i) {
    if (exchange_.at(i).chosen()) {
      rows.push_back(i);
      rows_.tell(LB_SETSEL, TRUE, i);
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
  if (!outcome.left_alone.empty()) {
    showMessage(dialog_, leftAloneText(outcome.left_alone).c_str(), "Warning",
                kMessageIconExclamation);
  }
  mailReport(outcome.report);
  if (!outcome.notice.empty() && groupwareProject != nullptr) {
    showStatus(outcome.notice.c_str());
  }
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
  return {transfer.report(), transfer.notice(), transfer.changed()};
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
