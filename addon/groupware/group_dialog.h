// The dialog of one direction of the exchange, while it is open. Made for one opening;
// user-interface thread only.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "addon/groupware/group_exchange.h"
#include "addon/groupware/group_files_win.h"
#include "addon/ide/tab_rows.h"

namespace kesto {

class GroupDialog {
 public:
  // The exchange must outlive it. mails: whether the settings want the report mailed.
  GroupDialog(GroupExchange& exchange, GroupRoots roots, bool (*mails)());
  GroupDialog(const GroupDialog&) = delete;
  GroupDialog& operator=(const GroupDialog&) = delete;

  // Returns when it was closed; the session may have ended meanwhile.
  void run(HWND owner);

 private:
  class Enabling;
  struct Outcome {
    std::string report;
    std::string notice;
    std::vector<std::string> left_alone;  // changed on the server meanwhile
  };

  static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
  void begin(HWND dialog);
  void end() const;
  void command(int id);
  void fill();
  std::vector<std::string> rowTexts() const;
  void showRows();
  void press(int button);
  std::vector<int> selectedRows() const;
  // "SEND !" or "GET !".
  void perform();
  std::vector<int> selectChosen();
  Outcome exchangeRows(const std::vector<int>& rows);
  void mailReport(const std::string& report) const;

  GroupExchange& exchange_;
  GroupRoots roots_;
  bool (*mails_)();
  std::string project_;  // its file, as it was when the dialog opened
  std::string name_;
  HWND dialog_ = nullptr;
  HWND list_ = nullptr;
  TabRows rows_;
  ServerState server_ = ServerState::kAbsent;  // when the list was filled
  bool busy_ = false;                          // boxes have loops of their own
};

}  // namespace kesto
