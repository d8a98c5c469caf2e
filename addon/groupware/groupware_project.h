// Groupware in the open project: opens the send and the get dialog. One object, created and
// destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include "ideapi/ide_interfaces.h"

namespace kesto {

class GroupExchange;

class GroupwareProject {
 public:
  // The service, null when there is none, must outlive it.
  explicit GroupwareProject(IProjectService* service) : service_(service) {}
  GroupwareProject(const GroupwareProject&) = delete;
  GroupwareProject& operator=(const GroupwareProject&) = delete;

  // Another project opens, or this one closes: a dialog that shows it goes.
  void projectChanged();

  // Each runs its dialog, whose owner may be null; the session may have ended on return,
  // and this object with it. While one is open nothing happens.
  void openSend(HWND owner);
  void openGet(HWND owner);

  // The open dialog, for that to enter itself.
  void setDialog(HWND dialog) { dialog_ = dialog; }

 private:
  void open(GroupExchange& exchange, bool (*mails)(), HWND owner);

  IProjectService* service_;
  HWND dialog_ = nullptr;
};

// The lifecycle fills and clears the slot; null outside a session.
extern GroupwareProject* groupwareProject;

}  // namespace kesto
