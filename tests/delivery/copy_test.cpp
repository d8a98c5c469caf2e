// Copies over a played disk: what arrives, what is told, and what the bar shows.
#include "addon/ide/copy_run.h"

#include <vector>

#include "addon/foundation/message_box.h"
#include "doctest.h"
#include "tests/delivery/played_copies.h"
#include "tests/foundation/recorded_boxes.h"

namespace kesto {
namespace {

class Bar : public CopyProgress {
 public:
  std::vector<std::uint64_t> done;
  std::string last;
  std::string caught_up;  // what was to be seen by then, a line each time
  int turns_left = -1;    // and then there is nobody left

  bool show(std::string_view name, std::uint64_t bytes, std::uint64_t total) override {
    done.push_back(bytes);
    last = std::string(name) + ' ' + std::to_string(bytes) + '/' + std::to_string(total);
    return turns_left != 0 && turns_left-- != 0;
  }
  void catchUp() override { caught_up += last + '\n'; }
};

struct Run {
  PlayedCopies disk;
  Bar bar;

  Run() { disk.directories = {"D", "D\\taken"}; }
  // Each file of the disk's P counts 10 of the total.
  std::string copied(const std::vector<const char*>& names) {
    CopyRun run(disk, bar, names.size() * 10, nullptr);
    std::string outcome;
    for (const char* name : names) {
      outcome +=
          run.copy((std::string("P\\") + name).c_str(), (std::string("D\\") + name).c_str(), 10)
              ? '+'
              : '-';
    }
    return outcome + (run.abandoned() ? "!" : "");
  }
};

std::string boxes() {
  std::string told;
  for (const RecordedBox& box : takeBoxes()) {
    CHECK(box.caption == "Kesto Addon error");
    CHECK(box.flags == kMessageIconHand);
    told += box.text + '\n';
  }
  return told;
}

}  // namespace

TEST_CASE("a copy arrives in blocks, with its time, and the bar follows") {
  Run run;
  const std::string bytes = std::string(16380, 'a') + std::string(16380, 'b') + "c";
  run.disk.files = {{"P\\a", {bytes, 77}}, {"D\\a", {"former", 5}}, {"P\\empty", {"", 78}}};
  CopyRun copies(run.disk, run.bar, bytes.size(), nullptr);
  CHECK(copies.copy("P\\a", "D\\a", bytes.size()));
  CHECK(copies.copy("P\\empty", "D\\empty", 0));
  CHECK(run.disk.text("D\\a") == bytes);
  CHECK(run.disk.files["D\\a"].modified == 77);
  CHECK(run.disk.files["D\\empty"].modified == 78);
  CHECK(run.disk.largest_block == 16380);
  CHECK(run.bar.done == std::vector<std::uint64_t>{0, 16380, 32760, 32761, 32761});
  CHECK(run.bar.last == "empty 32761/32761");
  CHECK(boxes().empty());
}

TEST_CASE("whatever fails is told, leaves what was there, counts as done, and the rest goes on") {
  Run run;
  run.disk.files = {{"P\\broken", {"12345"}}, {"D\\broken", {"old"}},   {"P\\taken", {"1"}},
                    {"P\\kept", {"1"}},       {"D\\kept", {"old"}},     {"P\\large", {"1234567"}},
                    {"D\\large", {"old"}},    {"P\\small", {"123456"}}, {"P\\closed", {"1"}},
                    {"P\\nowhere\\a", {"1"}}};
  run.disk.files["P\\broken"].broken = true;
  run.disk.files["P\\closed"].closed = true;
  run.disk.files["D\\kept"].kept = true;
  run.disk.room = 5 + 6;
  CHECK(run.copied({"gone", "closed", "broken", "taken", "kept", "large", "nowhere\\a", "small"}) ==
        "-------+");
  CHECK(boxes() ==
        "Error in opening file P\\gone\n"
        "Error in opening file P\\closed\n"
        "Error in reading file P\\broken\n"
        "Error in creating file D\\taken\n"
        "Error in creating file D\\kept\n"
        "Error in writing file D\\large\n"
        "Error in creating file D\\nowhere\\a\n");
  // The bar has come as far when the box is up.
  CHECK(run.bar.caught_up ==
        "gone 10/80\nclosed 20/80\nbroken 30/80\ntaken 40/80\nkept 50/80\n"
        "large 60/80\na 70/80\n");
  CHECK(run.bar.last == "small 76/80");
  for (const char* path : {"D\\broken", "D\\kept", "D\\large"}) {
    CHECK(run.disk.text(path) == "old");
  }
  CHECK(run.disk.text("D\\small") == "123456");
}

TEST_CASE("files that change, and sizes beyond what a file holds, stay within the total") {
  Run run;
  run.disk.files = {{"P\\grew", {std::string(20000, 'x')}}, {"P\\shrank", {"1"}}};
  CHECK(run.copied({"grew", "shrank"}) == "++");
  CHECK(run.bar.done == std::vector<std::uint64_t>{0, 10, 10, 10, 11});
  CopyRun huge(run.disk, run.bar, 3, nullptr);
  CHECK(huge.copy("P\\shrank", "D\\shrank", std::numeric_limits<std::uint64_t>::max()));
  CHECK(run.bar.last == "shrank 1/3");
}

TEST_CASE("a full directory is not searched for each new file, and a file found there is safe") {
  Run run;
  run.disk.files = {{"P\\a", {"1"}},      {"P\\b", {"2"}},   {"P\\kept", {"3"}},
                    {"D\\kept", {"old"}}, {"P\\new", {"4"}}, {"P\\c", {"5"}}};
  run.disk.files["D\\kept"].kept = true;
  run.disk.newcomer = "D\\c";
  CHECK(run.copied({"a", "b", "kept", "new", "c"}) == "++-++");
  CHECK(boxes() == "Error in creating file D\\kept\n");
  CHECK(run.disk.text("D\\kept") == "old");
  CHECK(run.disk.text("D\\c") == "5");
  // a; kept when it is put; new; c when it is put.
  CHECK(run.disk.placed == 4);
}

TEST_CASE("nothing is copied or told for a session that has ended") {
  Run run;
  run.disk.files = {{"P\\a", {std::string(40000, 'x')}}, {"D\\a", {"old"}}, {"P\\b", {"1"}}};
  run.bar.turns_left = 2;
  CHECK(run.copied({"a", "gone", "b"}) == "---!");
  CHECK(run.disk.text("D\\a") == "old");
  CHECK(run.disk.text("D\\b") == "(none)");
  CHECK(run.bar.done.size() == 3);
  CHECK(boxes().empty());
}

}  // namespace kesto
