#include "addon/ide/editor_operations.h"

#include "addon/foundation/message_box.h"
#include "addon/ide/completion_source.h"
#include "addon/ide/koptions.h"
#include "addon/ide/make_registration.h"
#include "addon/ide/service_holder.h"
#include "addon/ide/status_line.h"
#include "addon/ide/unknown_imp.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"
#include "tests/foundation/recorded_boxes.h"

namespace {

class Stepping : public kesto::CompletionSource {
 public:
  kesto::CompletionStep step;
  std::string asked;
  kesto::CompletionStep strike(std::string_view word) override {
    asked = word;
    return step;
  }
};

struct Session : BarSession {
  void edit(const std::string& line, int column) {
    ide.editor.file = "C:\\A.CPP";
    ide.editor.lines = {line};
    ide.editor.column = column;
    ide.editor.line = 1;
  }
};

class Client : public kesto::IUnknownImp<IMakeClient> {
 public:
  static int living;
  Client() { ++living; }
  void STDMETHODCALLTYPE MakeStarted() override {}
  void STDMETHODCALLTYPE MakeEnded(int) override {}

 protected:
  ~Client() override { --living; }
};

int Client::living = 0;

}  // namespace

TEST_CASE("what completes a word is inserted at the caret, which moves behind it") {
  Session session;
  session.create();
  Stepping engine;
  kesto::completionSource = &engine;
  session.edit("x = pri;", 8);
  engine.step = {"nt", "Possible :print, printf"};
  kesto::completeAtCursor("C:\\A.CPP");
  CHECK(engine.asked == "pri");
  CHECK(session.ide.editor.lines[0] == "x = print;");
  CHECK(session.ide.editor.column == 10);
  CHECK(session.lastStatus() == "Possible :print, printf");
  engine.step = {"", "100% formatted"};
  kesto::completeAtCursor("C:\\A.CPP:2");
  CHECK(session.ide.editor.lines[0] == "x = print;");
  CHECK(session.lastStatus() == "100% formatted");
  const size_t told = session.ide.status_line.texts.size();
  session.ide.editor.refuses = true;
  engine.step.text = "er";
  kesto::completeAtCursor("C:\\A.CPP");
  CHECK(session.ide.editor.column == 10);
  CHECK(session.ide.status_line.texts.size() == told);
  // No word, or one of 100 characters, is none to complete.
  engine.asked.clear();
  session.edit("a " + std::string(100, 'w'), 103);
  for (const int column : {1, 3, 103}) {
    session.ide.editor.column = column;
    kesto::completeAtCursor("C:\\A.CPP");
  }
  CHECK(engine.asked.empty());
  CHECK(session.ide.status_line.texts.size() == told);
  session.ide.editor.column = 102;
  kesto::completeAtCursor("C:\\A.CPP");
  CHECK(engine.asked == std::string(99, 'w'));
  kesto::completionSource = nullptr;
}

TEST_CASE("services that are missing leave the operations without effect") {
  Session session;
  kesto::showStatus("too early");
  session.ide.services.clear();
  session.create();
  session.edit("abc", 2);
  kesto::goToLine("C:\\A.CPP", 3);
  kesto::completeAtCursor("C:\\A.CPP");
  kesto::showStatus("nobody");
  CHECK(session.ide.editor.transactions == 0);
  CHECK(session.ide.status_line.texts.empty());
  kesto::OptionsServiceHolder options;
  REQUIRE(kesto::recorded_boxes.size() == 1);
  CHECK(kesto::recorded_boxes[0].caption == "Erreur");
  CHECK(kesto::recorded_boxes[0].text.find("svr!=NULL") != std::string::npos);
  CHECK(kesto::recorded_boxes[0].text.find("koptions") != std::string::npos);
  kesto::registerMakeClient([]() -> IMakeClient* { return new Client; });
  REQUIRE(kesto::recorded_boxes.size() == 2);
  CHECK(kesto::recorded_boxes[1].text == "Creation SMK impossible");
  CHECK(kesto::recorded_boxes[1].flags == kesto::kMessageOk);
  CHECK(Client::living == 0);
}

TEST_CASE("a make client lives from registration to its end") {
  Session session;
  kesto::registerMakeClient([]() -> IMakeClient* { return nullptr; });
  REQUIRE(kesto::recorded_boxes.size() == 1);
  CHECK(kesto::recorded_boxes[0].text == "Creation CMK impossible");
  CHECK(kesto::recorded_boxes[0].caption == "Erreur");
  kesto::registerMakeClient([]() -> IMakeClient* { return new Client; });
  CHECK(session.ide.make.clients.size() == 1);
  CHECK(Client::living == 1);
  kesto::unregisterMakeClient();
  kesto::unregisterMakeClient();
  CHECK(session.ide.make.clients.empty());
  CHECK(Client::living == 0);
}
