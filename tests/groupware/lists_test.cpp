// What the two lists hold and what their buttons do, worked out by hand.
#include <string>
#include <vector>

#include "addon/groupware/group_exchange.h"
#include "doctest.h"
#include "tests/groupware/played_group.h"

namespace kesto {

namespace {

const GroupRoots kRoots = {"P", "S"};
constexpr char kSources[] = "*.cpp;*.h";

// Every row, a line each; "/" for the tabs.
template <class T>
std::string rows(const Tableau<T>& list) {
  std::string all;
  for (int i = 0; i < list.count(); ++i) {
    std::string row = list.at(i)->row(1);
    for (char& c : row) {
      c = c == '\t' ? '/' : c;
    }
    all += row + '\n';
  }
  return all;
}

std::string sendRows(PlayedGroup& files, const GroupRoots& roots = kRoots,
                     std::string_view filters = kSources) {
  SendList list;
  fillSendList(list, files, roots, filters);
  return rows(list);
}

std::string getRows(PlayedGroup& files, const GroupRoots& roots = kRoots) {
  GetList list;
  fillGetList(list, files, roots, kSources);
  return rows(list);
}

// A request a character: "." for none.
std::string requests(const SendList& list) {
  std::string all;
  for (int i = 0; i < list.count(); ++i) {
    all += ".USC"[static_cast<int>(list.at(i)->request)];
  }
  return all;
}

std::string requests(const GetList& list) {
  std::string all;
  for (int i = 0; i < list.count(); ++i) {
    all += ".RG"[static_cast<int>(list.at(i)->request)];
  }
  return all;
}

}  // namespace

// Local and server copy: "-" not there, "w" or "r", and the seconds of the time.
TEST_CASE("how two copies compare") {
  const struct {
    const char *local, *server, *send, *get;
  } cases[] = {
      {"w5", "-", "a.cpp/NEW!/ ", ""},
      {"r5", "-", "", ""},
      {"-", "w5", "", "a.cpp/No/NEW!/Refresh/ "},
      {"-", "r5", "", "a.cpp/Yes/NEW!/Refresh/ "},
      {"w5", "r5", "a.cpp/Same/ ", "a.cpp/Yes/Same/ / "},
      {"w5", "r6", "a.cpp/Newer/ ", "a.cpp/Yes/Newer/Refresh/ "},
      {"w5", "r4", "a.cpp/Older/ ", "a.cpp/Yes/Older/ / "},  // held and edited here
      {"w5", "w5", "a.cpp/Same/CONFLICT", "a.cpp/No/Same/ERROR/ "},
      {"w5", "w6", "a.cpp/Newer/CONFLICT", "a.cpp/No/Newer/ERROR/ "},
      {"w5", "w4", "a.cpp/Older/CONFLICT", "a.cpp/No/Older/ERROR/ "},
      {"r5", "r5", "", "a.cpp/Yes/Same/ / "},
      {"r5", "r6", "", "a.cpp/Yes/Newer/Refresh/ "},
      {"r5", "r4", "", "a.cpp/Yes/Older/ERROR/ "},
      {"r5", "w5", "", "a.cpp/No/Same/ / "},
      {"r5", "w6", "", "a.cpp/No/Newer/Refresh/ "},
      {"r5", "w4", "", "a.cpp/No/Older/ERROR/ "},
  };
  for (const auto& c : cases) {
    CAPTURE(c.local);
    CAPTURE(c.server);
    PlayedGroup files;
    const auto put = [&files](const char* path, const char* copy) {
      if (*copy != '-') {
        files.put(path, "text", copy[1] - '0', *copy == 'w');
      }
    };
    put("P\\a.cpp", c.local);
    put("S\\a.cpp", c.server);
    CHECK(sendRows(files) == (*c.send != '\0' ? std::string(c.send) + '\n' : ""));
    CHECK(getRows(files) == (*c.get != '\0' ? std::string(c.get) + '\n' : ""));
  }
}

TEST_CASE("a part of a second is no difference") {
  PlayedGroup files;
  files.put("P\\a.cpp", "", 5);
  files.put("S\\a.cpp", "", 5, false);
  files.files["S\\a.cpp"].modified += FileFacts::kTicksPerSecond - 1;
  CHECK(sendRows(files) == "a.cpp/Same/ \n");
  files.files["S\\a.cpp"].modified += 1;
  CHECK(sendRows(files) == "a.cpp/Newer/ \n");
}

TEST_CASE("what a scan finds") {
  PlayedGroup files;
  for (const char* path : {"P\\b.cpp", "P\\Z.h", "P\\a\\x.cpp", "P\\a.cpp", "P\\a\\b\\y.h",
                           "P\\.kesto\\old.cpp", "P\\a\\.git\\no.cpp", "P\\notes.txt"}) {
    files.put(path, "", 1);
  }
  // Sorted by bytes: capitals first, "." before "\".
  CHECK(sendRows(files) ==
        "Z.h/NEW!/ \na.cpp/NEW!/ \na\\b\\y.h/NEW!/ \na\\x.cpp/NEW!/ \nb.cpp/NEW!/ \n");
  // A file that two patterns fit stands once, and no folder is listed twice: those of the
  // project that are entered, and their likes on the server that somebody asks for.
  files.listings = 0;
  CHECK(sendRows(files, kRoots, "b.*;;*.cpp; b*;*.cpp") ==
        "a.cpp/NEW!/ \na\\x.cpp/NEW!/ \nb.cpp/NEW!/ \n");
  CHECK(files.listings == 3 + 2);
}

TEST_CASE("the letters of a name fit in either case, and the system knows the rest") {
  class Asked : public PlayedGroup {
   public:
    std::string asked;
    std::optional<FileFacts> facts(const char* path) override {
      asked += std::string(path) + '\n';
      return PlayedGroup::facts(path);
    }
  };
  Asked files;
  files.put("P\\Main.CPP", "", 1);
  files.put("P\\\xE9t\xE9.h", "", 1);
  files.put("P\\short~1.h", "", 1);
  files.put("P\\main2.h", "", 1);
  files.put("S\\main.cpp", "", 1, false);
  files.put("S\\\xC9t\xE9.h", "", 2, false);
  CHECK(sendRows(files) ==
        "Main.CPP/Same/ \nmain2.h/NEW!/ \nshort~1.h/NEW!/ \n\xE9t\xE9.h/NEW!/ \n");
  // It may be another name of a file that is listed under its long one.
  CHECK(files.asked == "S\\short~1.h\nS\\\xE9t\xE9.h\n");
}

TEST_CASE("one tree within the other is not entered") {
  PlayedGroup files;
  files.put("P\\a.cpp", "", 1);
  files.put("P\\srv\\a.cpp", "", 1, false);
  files.put("P\\srv\\b.cpp", "", 1, true);
  files.put("P\\srv2\\c.cpp", "", 1);
  CHECK(sendRows(files, {"P", "P\\SRV"}) == "a.cpp/NEW!/ \nsrv2\\c.cpp/NEW!/ \n");
  GetList list;
  fillGetList(list, files, {"P\\srv2", "P"}, kSources);
  CHECK(rows(list) ==
        "a.cpp/No/NEW!/Refresh/ \nsrv\\a.cpp/Yes/NEW!/Refresh/ \nsrv\\b.cpp/No/NEW!/Refresh/ \n");
}

TEST_CASE("a root has no separator behind") {
  CHECK(rootOf("E:\\") == "E:");
  CHECK(rootOf("//host/share/p//") == "\\\\host\\share\\p");
  CHECK(pathBelow("E:", "a\\b.h") == "E:\\a\\b.h");
}

// Rows: 0 NEW!, 1 Same, 2 Newer, 3 Same and CONFLICT, 4 Older and CONFLICT.
TEST_CASE("the buttons of the send list") {
  PlayedGroup files;
  for (const char* path : {"P\\0.h", "P\\1.h", "P\\2.h", "P\\3.h", "P\\4.h"}) {
    files.put(path, "", 5);
  }
  files.put("S\\1.h", "", 5, false);
  files.put("S\\2.h", "", 6, false);
  files.put("S\\3.h", "", 5);
  files.put("S\\4.h", "", 4);
  const struct {
    std::vector<std::pair<SendButton, std::vector<int>>> presses;
    const char* requests;
  } cases[] = {
      {{}, "...CC"},
      {{{SendButton::kUpdate, {}}}, "U.UCC"},
      {{{SendButton::kSendAndUnlock, {}}}, "S.SCC"},
      {{{SendButton::kSendAndUnlock, {1, 2, 3}}}, ".SSCC"},
      // A file that is the same keeps what it was given by selection.
      {{{SendButton::kSendAndUnlock, {1}}, {SendButton::kUpdate, {}}}, "USUCC"},
      {{{SendButton::kSendAndUnlock, {}}, {SendButton::kUpdate, {0, 4}}}, "..SCC"},
      {{{SendButton::kUpdate, {}}, {SendButton::kClear, {0, 3}}}, "..UCC"},
      {{{SendButton::kUpdate, {}}, {SendButton::kClear, {}}}, "....."},
      {{{SendButton::kClear, {}}, {SendButton::kUpdate, {}}}, "U.U.U"},
      {{{SendButton::kClear, {}}, {SendButton::kSendAndUnlock, {3, 4}}}, "...SS"},
  };
  for (const auto& c : cases) {
    CAPTURE(c.requests);
    SendList list;
    fillSendList(list, files, kRoots, kSources);
    for (const auto& [button, selected] : c.presses) {
      pressButton(button, list, selected);
    }
    CHECK(requests(list) == c.requests);
    CHECK(list.at(0)->chosen() == (*c.requests == 'U' || *c.requests == 'S'));
    CHECK_FALSE((list.at(3)->chosen() && c.requests[3] == 'C'));
  }
}

// Rows: 0 NEW! and free, 1 NEW! and locked, 2 Same and free, 3 Same and locked, 4 Newer and
// free, 5 ERROR and free, 6 ERROR and locked.
TEST_CASE("the buttons of the get list") {
  PlayedGroup files;
  const bool writable[] = {true, false, true, false, true, true, false};
  for (int i = 0; i < 7; ++i) {
    const std::string name = std::to_string(i) + ".h";
    files.put("S\\" + name, "", i == 4 ? 6 : i == 6 ? 4 : 5, writable[i]);
    if (i > 1) {
      files.put("P\\" + name, "", 5, i == 5);
    }
  }
  const struct {
    std::vector<std::pair<GetButton, std::vector<int>>> presses;
    const char* requests;
  } cases[] = {
      {{}, "......."},
      {{{GetButton::kAsAdvised, {}}}, "RR..R.."},
      {{{GetButton::kAsAdvised, {1, 2, 5}}}, ".R....."},
      {{{GetButton::kRefresh, {}}}, "RR..R.."},
      {{{GetButton::kGetAndLock, {}}}, "G...G.."},
      {{{GetButton::kGetAndLock, {1, 2, 3, 5, 6}}}, "..G...."},
      {{{GetButton::kGetAndLock, {2}}, {GetButton::kRefresh, {}}}, "RRG.R.."},
      {{{GetButton::kGetAndLock, {2}}, {GetButton::kAsAdvised, {}}}, "RR..R.."},
      {{{GetButton::kGetAndLock, {}}, {GetButton::kRefresh, {0, 5}}}, "....G.."},
      {{{GetButton::kGetAndLock, {}}, {GetButton::kClear, {4}}}, "G......"},
      {{{GetButton::kRefresh, {}}, {GetButton::kClear, {}}}, "......."},
  };
  for (const auto& c : cases) {
    CAPTURE(c.requests);
    GetList list;
    fillGetList(list, files, kRoots, kSources);
    for (const auto& [button, selected] : c.presses) {
      pressButton(button, list, selected);
    }
    CHECK(requests(list) == c.requests);
    CHECK(list.at(0)->chosen() == (*c.requests != '.'));
  }
}

TEST_CASE("the files that were left alone are named as far as a box holds them") {
  const std::string head = "Changed on the server since the list was filled, and left alone:\n\n";
  CHECK(leftAloneText({"a.h", "b\\c.h"}) == head + "a.h\nb\\c.h");
  std::vector<std::string> names(21, "n");
  CHECK(leftAloneText(names).ends_with("n, n"));
  names.assign(100, std::string(100, 'n'));
  CHECK(leftAloneText(names).ends_with("n\nand 72 more"));
}

}  // namespace kesto
