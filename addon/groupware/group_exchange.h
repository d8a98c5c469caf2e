// The two directions of an exchange with the server, as one dialog shows either: a list, its
// buttons, and what "SEND !" or "GET !" does to a row. Plain code; user-interface thread.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "addon/groupware/group_lists.h"
#include "addon/groupware/transfer.h"
#include "addon/ide/help_topics.h"

namespace kesto {

// What the dialog of a direction looks like.
struct ExchangeLook {
  const char* dialog;          // its template
  std::span<const int> stops;  // tab stops of its rows, in dialog units
  const char* row;             // what follows the name at the most; each field has a heading
  const char* subject;         // of the mail; the project's name follows
  HelpTopic help;
};

class GroupExchange {
 public:
  virtual ~GroupExchange() = default;
  virtual const ExchangeLook& look() const = 0;
  virtual void fill(GroupFiles& files, const GroupRoots& roots, std::string_view filters,
                    WalkWatch* watch) = 0;
  virtual int count() const = 0;
  virtual const EltGW& at(int row) const = 0;
  virtual std::string rowText(int row, const GroupRoots& roots) const = 0;
  // The rows to work on; empty: every row. False when the control is no such button.
  virtual bool press(int button, const std::vector<int>& selected) = 0;
  virtual void transfer(int row, Transfer& transfer) const = 0;
};

template <class T>
class ListExchange : public GroupExchange {
 public:
  int count() const override { return list_.count(); }
  const EltGW& at(int row) const override { return *list_.at(row); }
  void transfer(int row, Transfer& transfer) const override { transfer.transfer(*list_.at(row)); }

 protected:
  Tableau<T> list_;
};

class SendExchange : public ListExchange<EltGWsend> {
 public:
  const ExchangeLook& look() const override;
  void fill(GroupFiles& files, const GroupRoots& roots, std::string_view filters,
            WalkWatch* watch) override;
  std::string rowText(int row, const GroupRoots& roots) const override;
  bool press(int button, const std::vector<int>& selected) override;
};

class GetExchange : public ListExchange<EltGWget> {
 public:
  const ExchangeLook& look() const override;
  void fill(GroupFiles& files, const GroupRoots& roots, std::string_view filters,
            WalkWatch* watch) override;
  std::string rowText(int row, const GroupRoots& roots) const override;
  bool press(int button, const std::vector<int>& selected) override;
};

// What the box says of the files that were left alone, one or more of them.
std::string leftAloneText(const std::vector<std::string>& names);

}  // namespace kesto
