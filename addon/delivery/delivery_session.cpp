#include "addon/delivery/delivery_session.h"

#include <windows.h>

#include <algorithm>
#include <memory>

#include "addon/delivery/confirmation_ids.h"
#include "addon/delivery/delivery.h"
#include "addon/delivery/delivery_list.h"
#include "addon/delivery/delivery_run.h"
#include "addon/delivery/project_options.h"
#include "addon/foundation/message_box.h"
#include "addon/ide/copy_files_win.h"
#include "addon/ide/current_project.h"
#include "addon/ide/dialog_place.h"
#include "addon/ide/environment.h"
#include "addon/ide/find_window.h"
#include "addon/ide/gdi_handles.h"
#include "addon/ide/help_file.h"
#include "addon/ide/progress_bar.h"
#include "addon/ide/report_header.h"
#include "addon/ide/status_line.h"
#include "addon/ide/wait_cursor.h"
#include "addon/mail/mail.h"

namespace kesto {
namespace {

constexpr char kErrorCaption[] = "Kesto AddOn error";
constexpr char kNothing[] = "No files to deliver !";
constexpr int kRowMargin = 4;  // pixels

class PaintsMeanwhile : public CompareWatch {
 public:
  bool goOn() override { return painting_.goOn(); }

 private:
  PaintingWatch painting_;
};

// Without a session there are none any more.
class GroupMessages : public DeliveryMessages {
 public:
  std::string begin(int files) override {
    const std::string header = deliveryHeader(frameProject(), currentDate(), currentTime(), files);
    if (delivery != nullptr) {
      delivery->messages().addHeader(header);
    }
    return header;
  }
  void add(const std::string& text) override {
    if (delivery != nullptr) {
      delivery->messages().add(text);
    }
  }
};

// What was confirmed stands, whatever becomes of the project: groups and project are copies.
class Session {
 public:
  void run();

 private:
  static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
  void fill(HWND dialog) const;
  void proceed(HWND dialog);
  void sendMail(HWND dialog, const DeliveryOutcome& outcome) const;

  std::string project_ = projectFile();
  Tableau<OneDelRep> groups_;
  Tableau<Livrage> deliveries_;
  CopyFilesWin files_;
  bool proceeding_ = false;
};

void Session::run() {
  // Directories may be meant from the project's on, wherever dialogs have led since.
  if (isProjectOpen()) {
    SetCurrentDirectoryA((projectDirectory() + '\\').c_str());
  }
  const DeliveryNodes nodes = rebuildDeliveryGroups();
  for (int i = 0; i < deliveryProjectOptions.groups.count(); ++i) {
    groups_.append(std::make_unique<OneDelRep>(*deliveryProjectOptions.groups[i]).release());
  }
  if (const OneDelRep* lost = groupWithoutDirectory(groups_, files_)) {
    const std::string text =
        "Directory " + std::string(lost->directory.view()) + " does not exist !\nChange it !";
    showMessage(nullptr, text.c_str(), kErrorCaption, kMessageIconHand);
    return;
  }
  PaintsMeanwhile watch;
  {
    const WaitCursor waiting;
    if (!listDeliveries(nodes.nodes, groups_, files_, watch, deliveries_)) {
      return;
    }
  }
  if (deliveries_.count() == 0) {
    GroupMessages messages;
    messages.begin(0);
    messages.add(kNothing);
    showMessage(nullptr, kNothing, "Warning", kMessageIconInformation);
  } else if (addonEnvironment != nullptr) {
    DialogBoxParamA(addonEnvironment->instance, "FenetreConfirmation", findFrame(), procedure,
                    reinterpret_cast<LPARAM>(this));
  }
}

INT_PTR CALLBACK Session::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrA(dialog, DWLP_USER, lParam);
    reinterpret_cast<Session*>(lParam)->fill(dialog);
    return TRUE;
  }
  if (showHelpOn(message, kHelpDelivery)) {
    return TRUE;
  }
  auto* session = reinterpret_cast<Session*>(GetWindowLongPtrA(dialog, DWLP_USER));
  // Boxes of the copying have a loop of their own.
  if (message != WM_COMMAND || session == nullptr || session->proceeding_) {
    return FALSE;
  }
  if (LOWORD(wParam) == IDCANCEL) {
    EndDialog(dialog, 0);
  } else if (LOWORD(wParam) == CONFIRMATION_PROCEED) {
    session->proceed(dialog);
  } else {
    return FALSE;
  }
  return TRUE;
}

void Session::fill(HWND dialog) const {
  const HWND list = GetDlgItem(dialog, CONFIRMATION_LIST);
  const ClientDc dc(list);
  const Selection font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageA(list, WM_GETFONT, 0, 0)));
  long widest = 0;
  for (int i = 0; i < deliveries_.count(); ++i) {
    const std::string row = deliveryRow(*deliveries_[i]);
    SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row.c_str()));
    SIZE extent = {};
    GetTextExtentPoint32A(dc.get(), row.c_str(), static_cast<int>(row.size()), &extent);
    widest = std::max(widest, extent.cx);
  }
  SendMessageA(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest + kRowMargin), 0);
  CheckDlgButton(dialog, CONFIRMATION_MAIL,
                 mail != nullptr && mail->recipients().count() > 0 ? BST_CHECKED : BST_UNCHECKED);
  centreOnOwner(dialog);
}

void Session::proceed(HWND dialog) {
  proceeding_ = true;
  DeliveryOutcome outcome;
  {
    const WaitCursor waiting;
    ProgressBar bar;
    GroupMessages messages;
    outcome = deliver(deliveries_, files_, bar, messages, dialog);
  }
  const bool with_mail = IsDlgButtonChecked(dialog, CONFIRMATION_MAIL) == BST_CHECKED;
  if (delivery != nullptr && !outcome.abandoned) {
    showStatus("Delivery terminated");
    if (!outcome.failed && !outcome.report.empty() && with_mail) {
      sendMail(dialog, outcome);
    }
  }
  EndDialog(dialog, 1);
}

// The recipients are the open project's.
void Session::sendMail(HWND dialog, const DeliveryOutcome& outcome) const {
  if (mail == nullptr || !isProjectOpen() || projectFile() != project_) {
    return;
  }
  const std::string notes =
      notificationsToMail != nullptr ? notificationsToMail(project_) : std::string();
  const bool sent = mail->send(dialog, outcome.subject.c_str(), outcome.report.c_str(),
                               notes.empty() ? nullptr : notes.c_str());
  if (!sent && delivery != nullptr) {
    showMessage(dialog, "MAPI SendMail missed !", kErrorCaption, kMessageIconHand);
  }
}

}  // namespace

void runDelivery() {
  Session().run();
}

}  // namespace kesto
