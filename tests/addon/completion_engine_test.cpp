// The completion engine over the settings and real files.
#include "addon/completion/completion_engine.h"

#include "addon/addon_hook_host.h"
#include "addon/foundation/message_box.h"
#include "addon/foundation/settings_store.h"
#include "addon/foundation/text_file.h"
#include "doctest.h"
#include "tests/addon/bar_session.h"
#include "tests/foundation/recorded_boxes.h"

namespace kesto {

TEST_CASE("keyword files of the settings complete, and extracted ones join them") {
  const OwnSettings root;
  const AddonHookHost host;
  REQUIRE(writeTextFile("words.kwd", "stack|of plates\n"));
  REQUIRE(writeTextFile("stack.cpp", "int Stack::push(int v)\n"));
  remove("stack.kwd");
  // Nothing to complete with: a key that writes does so, another one is the key all the same.
  for (const int code : {32 + 4000, 119 + 1000, 32 + 1000, 222}) {
    settings().writeInteger("Completion", "KeyCode", code);
    completionEngine = new CompletionEngine;
    CHECK(host.completionKey() == (code == 4032 || code == 1119 ? static_cast<unsigned>(code) : 0));
    delete completionEngine;
  }
  settings().writeInteger("Completion", "NbFiles", 3);
  settings().writeString("Completion\\Files", "Entry0", "gone.kwd");
  settings().writeString("Completion\\Files", "Entry2", "words.kwd");
  completionEngine = new CompletionEngine;
  CHECK(host.completionKey() == 222);
  CHECK(completionEngine->settings.files.value.size() == 2);
  CHECK(completionSource->strike("sta").text == "ck");
  CHECK(completionSource->strike("pu").text.empty());

  takeBoxes();
  completionEngine->settings.files.value.emplace_back(extractKeywordsOf(nullptr, "stack.cpp"));
  completionEngine->load();
  CHECK(completionSource->strike("pu").text == "sh");
  CHECK(takeBoxes().empty());
  for (const char* none : {"gone.cpp", "words.kwd"}) {
    CHECK(extractKeywordsOf(nullptr, none).length() == 0);
    const std::vector<RecordedBox> boxes = takeBoxes();
    REQUIRE(boxes.size() == 1);
    CHECK(boxes[0].text == "Impossible to extract keywords");
    CHECK(boxes[0].caption == "Warning");
  }
  // The environment closes while somebody thinks about the question.
  REQUIRE(writeTextFile("stack.kwd", "push|a plate\n"));
  while_box = [] {
    delete completionEngine;
    completionEngine = nullptr;
  };
  box_answer = kAnswerYes;
  CHECK(extractKeywordsOf(nullptr, "stack.cpp") == "stack.kwd");
  while_box = nullptr;
  box_answer = kAnswerOk;
  CHECK(takeBoxes().size() == 1);
  CHECK(holdsText("stack.kwd", "Stack\npush\n"));
  CHECK(completionSource == nullptr);
  CHECK(settings().readInteger("Completion", "NbFiles", 0) == 3);
}

}  // namespace kesto
