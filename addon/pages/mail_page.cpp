#include "addon/pages/mail_page.h"

#include <algorithm>

#include "addon/ide/help_topics.h"
#include "addon/ide/project_client.h"
#include "addon/mail/mail.h"
#include "addon/pages/page_ids.h"
#include "addon/pages/page_list.h"

namespace kesto {
namespace {

constexpr int kRecipientLimit = 299;  // characters
constexpr char kNewEntry[] = "new entry";

HWND listOf(HWND dialog) {
  return GetDlgItem(dialog, MAIL_RECIPIENTS);
}

int rowsOf(HWND dialog) {
  return static_cast<int>(SendMessageA(listOf(dialog), LB_GETCOUNT, 0, 0));
}

int selectedRow(HWND dialog) {
  return static_cast<int>(SendMessageA(listOf(dialog), LB_GETCURSEL, 0, 0));
}

void insertRow(HWND dialog, int row, const char* text) {
  SendMessageA(listOf(dialog), LB_INSERTSTRING, static_cast<WPARAM>(row),
               reinterpret_cast<LPARAM>(text));
}

// A project does not keep entries without a text.
void takeRows(HWND dialog, Ensemble<String>& recipients) {
  recipients.clear();
  for (int row = 0; row < rowsOf(dialog); ++row) {
    const std::string text = rowText(listOf(dialog), row);
    if (!text.empty()) {
      recipients.append(new String(std::string_view(text)));
    }
  }
}

}  // namespace

MailPage::MailPage(int dialog_id)
    : AddonPageBase(dialog_id, kPageKind, "Mail", "set mail options", kHelpPageMail) {}

void MailPage::exchange(PageExchange& controls) {
  if (mail == nullptr) {
    return;
  }
  project_.meet(controls);
  controls.flag(MAIL_CONTROL, "Prompt mail dialog before sending mail", mail->control.value);
  controls.plain(MAIL_RECIPIENTS, "Select a recipient");
  controls.plain(MAIL_RECIPIENT, "Set recipient adress");
  controls.plain(MAIL_NEW, "Create a new entry");
  controls.plain(MAIL_DELETE, "Delete a recipient");
  controls.plain(MAIL_COPY, "Copy the recipients, to paste them into another project");
  controls.plain(MAIL_PASTE, "Paste the copied recipients");
  for (int control = MAIL_RECIPIENTS; control <= MAIL_COPY; ++control) {
    controls.enable(control, project_.isOpen());
  }
  controls.enable(MAIL_PASTE, project_.isOpen() && mail->copiedRecipients().count() > 0);
}

void MailPage::filled(HWND dialog) {
  SendDlgItemMessageA(dialog, MAIL_RECIPIENT, EM_LIMITTEXT, kRecipientLimit, 0);
  SendMessageA(listOf(dialog), LB_RESETCONTENT, 0, 0);
  if (mail != nullptr && project_.isOpen()) {
    for (int i = 0; i < mail->recipients().count(); ++i) {
      insertRow(dialog, i, mail->recipients()[i]->text());
    }
  }
  fitRowExtent(listOf(dialog));
  select(dialog, std::min(0, rowsOf(dialog) - 1));
}

bool MailPage::command(HWND dialog, int control, int notification) {
  if (mail == nullptr || !project_.isOpen()) {
    return false;
  }
  if (control == MAIL_RECIPIENTS && notification == LBN_SELCHANGE) {
    select(dialog, selectedRow(dialog));
  } else if (control == MAIL_RECIPIENT && notification == EN_CHANGE && !showing_) {
    replaceSelected(dialog);
  } else if (control >= MAIL_NEW && control <= MAIL_PASTE && notification == BN_CLICKED) {
    press(dialog, control);
  } else {
    return false;
  }
  return true;
}

void MailPage::press(HWND dialog, int button) {
  if (button == MAIL_COPY) {
    copy(dialog);
    return;
  }
  if (button == MAIL_NEW) {
    insertAfterSelected(dialog, kNewEntry);
    // Typing takes the place of the words.
    const HWND field = GetDlgItem(dialog, MAIL_RECIPIENT);
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
    SendMessageA(field, EM_SETSEL, 0, -1);
  } else if (button == MAIL_DELETE) {
    removeSelected(dialog);
  } else {
    paste(dialog);
  }
  fitRowExtent(listOf(dialog));
}

// At the top when none is selected.
void MailPage::insertAfterSelected(HWND dialog, const char* text) {
  const int row = selectedRow(dialog) + 1;
  insertRow(dialog, row, text);
  select(dialog, row);
  markChanged();
}

void MailPage::removeSelected(HWND dialog) {
  const int row = selectedRow(dialog);
  if (row == LB_ERR) {
    return;
  }
  SendMessageA(listOf(dialog), LB_DELETESTRING, static_cast<WPARAM>(row), 0);
  select(dialog, std::min(row, rowsOf(dialog) - 1));
  markChanged();
}

// What is typed while no row is selected becomes a new one.
void MailPage::replaceSelected(HWND dialog) {
  const std::string text = controlText(dialog, MAIL_RECIPIENT);
  const int selected = selectedRow(dialog);
  if (selected == LB_ERR && text.empty()) {
    return;
  }
  if (selected != LB_ERR) {
    SendMessageA(listOf(dialog), LB_DELETESTRING, static_cast<WPARAM>(selected), 0);
  }
  const int row = std::max(selected, 0);
  insertRow(dialog, row, text.c_str());
  SendMessageA(listOf(dialog), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  fitRowExtent(listOf(dialog));
  markChanged();
}

void MailPage::copy(HWND dialog) {
  takeRows(dialog, mail->copiedRecipients());
  EnableWindow(GetDlgItem(dialog, MAIL_PASTE), mail->copiedRecipients().count() > 0 ? TRUE : FALSE);
}

void MailPage::paste(HWND dialog) {
  for (int i = 0; i < mail->copiedRecipients().count(); ++i) {
    insertAfterSelected(dialog, mail->copiedRecipients()[i]->text());
  }
}

// Shows its text in the field; -1 is none.
void MailPage::select(HWND dialog, int row) {
  SendMessageA(listOf(dialog), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  showing_ = true;
  SetDlgItemTextA(dialog, MAIL_RECIPIENT, rowText(listOf(dialog), row).c_str());
  showing_ = false;
}

void MailPage::stored(HWND dialog) {
  if (mail == nullptr) {
    return;
  }
  mail->section.write();
  if (project_.isOpen()) {
    takeRows(dialog, mail->recipients());
    saveProjectOptions();
  }
}

}  // namespace kesto
