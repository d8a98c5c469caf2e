// Sending through MAPI32.DLL files that are really loaded: those of tests/mapi, by their
// paths beforehand, as a library that is loaded already is found by its name alone.
#include "addon/mail/mail.h"

#include <cstdio>
#include <functional>
#include <string>
#include <utility>

#include "addon/foundation/settings_store.h"
#include "addon/foundation/text_file.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"
#include "tests/foundation/recorded_boxes.h"

namespace {

constexpr char kFile[] = "included.tmp";
constexpr char kRecord[] = "mapi.txt";
constexpr char kClosing[] =
    "  \"----------------------------------------------------------------------\\n\"\n"
    "  \"That's all folks !\\n\"\n";

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

// A mail object, and one of the libraries of tests/mapi.
class MailFixture {
 public:
  explicit MailFixture(const char* library = "recording_mapi", const char* answer = "0") {
    kesto::recorded_boxes.clear();
    char folder[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof folder, folder);
    SetEnvironmentVariableA("KESTO_MAIL", folder);
    SetEnvironmentVariableA("KESTO_MAPI_ANSWER", answer);
    takeRecord();
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    *(strrchr(path, '\\') + 1) = '\0';
    mapi_ = LoadLibraryA((std::string(path) + library + "\\mapi32.dll").c_str());
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

TEST_CASE("every field of a mail, as MAPI is given it") {
  MailFixture fixture;
  WindowFixture windows;
  kesto::mail->recipients().append(new kesto::String("Anna M\xFCller"));
  kesto::mail->recipients().append(new kesto::String("bert@example.org"));
  kesto::writeTextFile(kFile, "first\n\xE9\n");
  CHECK(kesto::mail->send(windows.frame, "Sub \"j\"", "body\r\nmore\n", kFile));
  CHECK(contents() == "(gone)");
  char name[40] = "";
  GetClassNameA(windows.frame, name, sizeof name);
  CHECK(takeRecord() ==
        std::string("send session 0, flags 1, reserved 0, window \"") + name + "\"\n" +
            "message reserved 0, flags 0, type none, date none, conversation none, "
            "originator none, files 0 none, recipients 2 given\n"
            "recipient class 1, name \"Anna M\\xFCller\", address none, entry 0 none, reserved 0\n"
            "recipient class 1, name \"bert@example.org\", address none, entry 0 none, reserved 0\n"
            "subject \"Sub \\\"j\\\"\"\nnote\n"
            "  \"body\\x0D\\n\"\n  \"more\\n\"\n  \"first\\n\"\n  \"\\xE9\\n\"\n" +
            kClosing);
  // A file that is not there, and nobody to send to.
  kesto::mail->recipients().clear();
  CHECK(kesto::mail->send(nullptr, "s", "body", kFile));
  CHECK(takeRecord() ==
        "send session 0, flags 1, reserved 0, window none\n"
        "message reserved 0, flags 0, type none, date none, conversation none, "
        "originator none, files 0 none, recipients 0 none\n"
        "subject \"s\"\nnote\n  \"body\"\n");
  CHECK(kesto::takeBoxes().empty());
}

TEST_CASE("what was not sent stays") {
  MailFixture fixture("recording_mapi", "2");
  kesto::writeTextFile(kFile, "kept\n");
  CHECK(!kesto::mail->send(nullptr, "s", "", kFile));
  CHECK(contents() == "kept\r\n");
  CHECK(takeRecord().find("\"kept\\n\"") != std::string::npos);
  CHECK(kesto::takeBoxes().empty());
}

TEST_CASE("a MAPI that cannot send") {
  MailFixture fixture("mapi_without_entry");
  kesto::writeTextFile(kFile, "kept\n");
  CHECK(!kesto::mail->send(nullptr, "s", "", kFile));
  CHECK(contents() == "kept\r\n");
  const std::vector<kesto::RecordedBox> boxes = kesto::takeBoxes();
  CHECK(boxes.size() == 1);
  if (boxes.empty()) {
    return;
  }
  CHECK(boxes[0].text == "MAPI not available !");
  CHECK(boxes[0].caption == "Kesto AddOn error");
  CHECK(boxes[0].flags == MB_ICONHAND);
}

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
