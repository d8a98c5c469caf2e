// The mails of the add-on: one object holds the recipients of the open project and sends
// a plain text to all of them through Simple MAPI, which is loaded for the time of one
// sending. Created and destroyed by the lifecycle; user-interface thread only.
#pragma once

#include <windows.h>

#include "addon/foundation/setting.h"
#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"

namespace kesto {

class Mail {
 public:
  // Reads section "Mail".
  Mail();
  // Writes it back.
  ~Mail();
  Mail(const Mail&) = delete;
  Mail& operator=(const Mail&) = delete;

  // Names or addresses as typed, in order. Those of the project are read and written
  // with its options.
  Ensemble<String>& recipients() { return recipients_; }
  // What the options page has copied, to be pasted into another project's list.
  Ensemble<String>& copiedRecipients() { return copied_recipients_; }

  SettingSection section{"Mail"};
  // Not 0: MAPI's own dialog comes before each sending.
  IntegerSetting control{section, "Control", 0};

  // Whether the mail was sent. owner is the parent of MAPI's dialogs, or null. The text of
  // include_file, unless that is null or cannot be read, follows the body, and leaves the
  // file once it was sent. A missing MAPI is told here, a refusal by the caller. Messages
  // are handled meanwhile: the session may have ended, and this object with it.
  bool send(HWND owner, const char* subject, const char* body, const char* include_file);

 private:
  Ensemble<String> copied_recipients_;
  Ensemble<String> recipients_;
};

// The lifecycle fills and clears the slot; null outside a session.
extern Mail* mail;

}  // namespace kesto
