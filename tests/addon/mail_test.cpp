// What happens to a mail while MAPI shows its dialog; the mails themselves are compared
// after tests/scenarios/mail.wbs. The MAPI32.DLL is that of tests/mapi, loaded by its path
// beforehand, as a library that is loaded already is found by its name alone.
#include "addon/mail/mail.h"

#include <cstdio>
#include <functional>
#include <string>
#include <utility>

#include "addon/foundation/settings_store.h"
#include "addon/foundation/text_file.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"

namespace {

constexpr char kFile[] = "included.tmp";
constexpr char kRecord[] = "mapi.txt";

std::string takeRecord() {
  std::string record;
  kesto::readFileBytes(kRecord, record);
  DeleteFileA(kRecord);
  return record;
}

std::string contents() {
  std::string bytes;
  return kesto::readFileBytes(kFile, bytes) ? bytes : "(gone)";
}

// Ends the box of the recording MAPI, after what is to happen while it is up.
class AnswersBox {
 public:
  AnswersBox(int answer, std::function<void()> meanwhile)
      : hook_(SetWindowsHookExA(WH_CBT, onActivate, nullptr, GetCurrentThreadId())) {
    answer_ = answer;
    meanwhile_ = std::move(meanwhile);
  }
  ~AnswersBox() { UnhookWindowsHookEx(hook_); }
  AnswersBox(const AnswersBox&) = delete;
  AnswersBox& operator=(const AnswersBox&) = delete;

 private:
  static LRESULT CALLBACK onActivate(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && meanwhile_) {
      std::exchange(meanwhile_, nullptr)();
      PostMessageA(reinterpret_cast<HWND>(wParam), WM_COMMAND, static_cast<WPARAM>(answer_), 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }
  static int answer_;
  static std::function<void()> meanwhile_;
  HHOOK hook_;
};
int AnswersBox::answer_ = 0;
std::function<void()> AnswersBox::meanwhile_;

// A mail object, and a MAPI that notes what it is given.
class MailFixture {
 public:
  MailFixture() {
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof folder, folder);
    SetEnvironmentVariableA("KESTO_MAIL", folder);
    SetEnvironmentVariableA("KESTO_MAPI_ANSWER", "0");
    takeRecord();
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    *(strrchr(path, '\\') + 1) = '\0';
    mapi_ = LoadLibraryA((std::string(path) + "recording_mapi\\mapi32.dll").c_str());
    REQUIRE(mapi_ != nullptr);
    kesto::mail = new kesto::Mail;
  }
  ~MailFixture() {
    delete kesto::mail;
    kesto::mail = nullptr;
    FreeLibrary(mapi_);
    CHECK(GetModuleHandleA("MAPI32.DLL") == nullptr);
    takeRecord();
    DeleteFileA(kFile);
  }
  MailFixture(const MailFixture&) = delete;
  MailFixture& operator=(const MailFixture&) = delete;

  OwnSettings own_settings;

 private:
  HMODULE mapi_;
};

}  // namespace

TEST_CASE("MAPI's own dialog comes where the setting asks for it, and much can happen meanwhile") {
  for (const int answer : {IDOK, IDCANCEL}) {
    CAPTURE(answer);
    MailFixture fixture;
    kesto::mail->setControl(true);
    kesto::mail->recipients().append(new kesto::String("anna"));
    kesto::writeTextFile(kFile, "read\n");
    const AnswersBox box(answer, [] {
      kesto::appendTextFile(kFile, "later\n");
      // The session ends.
      delete kesto::mail;
      kesto::mail = nullptr;
    });
    CHECK(kesto::mail->send(nullptr, "s", "", kFile) == (answer == IDOK));
    CHECK(contents() == (answer == IDOK ? "later\r\n" : "read\r\nlater\r\n"));
    CHECK(takeRecord().starts_with("send session 0, flags 9, reserved 0, window none\n"));
    CHECK(kesto::settings().readInteger("Mail", "Control", 0) == 1);
    // Read at the start.
    CHECK(kesto::Mail().control());
  }
}
