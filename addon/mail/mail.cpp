#include "addon/mail/mail.h"

#include <mapi.h>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "addon/foundation/file_system_win.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/safe_write.h"
#include "addon/foundation/text_file.h"
#include "addon/mail/included_text.h"

namespace kesto {

Mail* mail = nullptr;

namespace {

struct FreeModule {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Module = std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule>;

// Windows 95 has a box of its own for a library that misses another.
Module loadMapi() {
  const UINT former = SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  Module mapi(LoadLibraryA("MAPI32.DLL"));
  SetErrorMode(former);
  return mapi;
}

void complain(const char* text) {
  showMessage(nullptr, text, "Kesto AddOn error", kMessageIconHand);
}

// The file that a mail carries, if there is one and it can be read.
class IncludedFile {
 public:
  explicit IncludedFile(const char* path) {
    std::string bytes;
    if (path != nullptr && readFileBytes(path, bytes)) {
      path_ = path;
      text_.emplace(std::move(bytes));
    }
  }

  void appendTo(std::string& note) const {
    if (text_.has_value()) {
      text_->appendTo(note);
    }
  }

  // Takes out of the file what was sent.
  void consume() const {
    std::string now;
    if (!text_.has_value() || !readFileBytes(path_.c_str(), now)) {
      return;
    }
    const std::optional<std::string> rest = text_->restOf(std::move(now));
    if (!rest.has_value()) {
      return;
    }
    if (rest->empty()) {
      DeleteFileA(path_.c_str());
      return;
    }
    FileSystemWin files;
    SafeFile file(files, path_);
    file.write(*rest);
    file.put();
  }

 private:
  std::string path_;
  std::optional<IncludedText> text_;
};

// Wine's own mail provider passes on addresses alone and resolves no names.
bool wantsAddresses() {
  return GetModuleHandleA("WINEMAPI.DLL") != nullptr;
}

// A mail with all that its MAPI message points at.
class Message {
 public:
  Message(const Ensemble<String>& recipients, const char* subject, const char* body,
          const IncludedFile& included)
      : subject_(subject != nullptr ? subject : ""), note_(body != nullptr ? body : "") {
    included.appendTo(note_);
    for (int i = 0; i < recipients.count(); ++i) {
      names_.emplace_back(recipients[i]->view());
    }
    for (std::string& name : names_) {
      MapiRecipDesc recipient = {};
      recipient.ulRecipClass = MAPI_TO;
      recipient.lpszName = name.data();
      recipient.lpszAddress = wantsAddresses() ? name.data() : nullptr;
      descriptors_.push_back(recipient);
    }
  }
  Message(const Message&) = delete;
  Message& operator=(const Message&) = delete;

  bool sendBy(LPMAPISENDMAIL send_mail, HWND owner, FLAGS flags) {
    MapiMessage message = {};
    message.lpszSubject = subject_.data();
    message.lpszNoteText = note_.data();
    message.nRecipCount = static_cast<ULONG>(descriptors_.size());
    message.lpRecips = descriptors_.empty() ? nullptr : descriptors_.data();
    return send_mail(lhSessionNull, reinterpret_cast<ULONG_PTR>(owner), &message, flags, 0) ==
           SUCCESS_SUCCESS;
  }

 private:
  std::string subject_;
  std::string note_;
  std::vector<std::string> names_;
  std::vector<MapiRecipDesc> descriptors_;
};

}  // namespace

Mail::Mail() {
  section.read();
}

Mail::~Mail() {
  section.write();
}

bool Mail::send(HWND owner, const char* subject, const char* body, const char* include_file) {
  Module mapi = loadMapi();
  if (!mapi) {
    complain("MAPI not present !");
    return false;
  }
  const auto send_mail = reinterpret_cast<LPMAPISENDMAIL>(
      reinterpret_cast<void*>(GetProcAddress(mapi.get(), "MAPISendMail")));
  if (send_mail == nullptr) {
    mapi.reset();
    complain("MAPI not available !");
    return false;
  }
  const IncludedFile included(include_file);
  Message message(recipients_, subject, body, included);
  const FLAGS flags = MAPI_LOGON_UI | (control.value != 0 ? MAPI_DIALOG : 0);
  const bool sent = message.sendBy(send_mail, owner, flags);
  // From here on the object itself may be gone.
  if (sent) {
    included.consume();
  }
  return sent;
}

}  // namespace kesto
