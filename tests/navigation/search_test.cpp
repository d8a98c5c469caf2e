#include <functional>
#include <map>
#include <string>
#include <vector>

#include "addon/foundation/directory_walk.h"
#include "addon/foundation/path.h"
#include "addon/navigation/cross_header.h"
#include "addon/navigation/prompt_history.h"
#include "addon/navigation/quick_resu.h"
#include "addon/navigation/search_plan.h"
#include "doctest.h"
#include "tests/foundation/byte_file.h"

namespace kesto {

namespace {

std::string steps(Search search, const SearchPlaces& places) {
  std::string text;
  for (const SearchStep& step : planSearch(search, places)) {
    text += step.directory + '|' + step.mask + ' ';
  }
  return text;
}

// A tree played by the test: the files and directories of each directory, in listing
// order. It knows no masks, only which it was asked for.
class PlayedTree : public MaskLister {
 public:
  std::map<std::string, std::vector<std::string>> files;
  std::map<std::string, std::vector<std::string>> directories;
  bool endless = false;  // every directory holds two more
  int listed = 0;

  void listFiles(const char* directory, const char* mask, Tableau<String>& names) override {
    ++listed;
    append(files[std::string(directory) + '|' + mask], names);
  }
  void listDirectories(const char* directory, Tableau<String>& names) override {
    append(endless ? std::vector<std::string>{"loop", "more"} : directories[directory], names);
  }

 private:
  static void append(const std::vector<std::string>& from, Tableau<String>& names) {
    for (const std::string& name : from) {
      names.append(new String(name.c_str()));
    }
  }
};

class Visits : public FileVisitor {
 public:
  std::string paths;
  std::string stop_at = "never";
  bool visit(const char* path) override {
    paths += std::string(path) + ' ';
    return path == stop_at;
  }
};

}  // namespace

TEST_CASE("where each search walks") {
  const SearchPlaces open = {"C:\\P", true, "D:\\s;E:\\", "F:\\i", "*.cpp;*.c", "*.h"};
  const SearchPlaces closed = {"C:\\P", false, "D:\\s", "F:\\i", "*.c", "*.h"};
  const SearchPlaces gaps = {"C:\\P", true, "D:\\s;;E:\\e", "", ";*.c", "*.h;;*.rh"};
  const SearchPlaces source_only = {"C:\\P", true, "D:\\s", "", "*.c", ""};
  const SearchPlaces no_source = {"C:\\P", true, "", "F:\\i", "", "*.h"};
  const SearchPlaces gap_first = {"C:\\P", true, ";D:\\s", "F:\\i", "*.c;;*.x", "*.h"};
  const struct {
    Search search;
    const SearchPlaces& places;
    const char* expected;
  } cases[] = {
      {Search::kFunction, open, "C:\\P|*.cpp C:\\P|*.c D:\\s|*.cpp D:\\s|*.c E:\\|*.cpp E:\\|*.c "},
      {Search::kFunction, closed, "C:\\P|*.c "},
      {Search::kFunction, gaps, ""},
      {Search::kFunction, gap_first, "C:\\P|*.c "},
      {Search::kMethod, open, "C:\\P|*.cpp C:\\P|*.c "},
      {Search::kMethod, closed, "C:\\P|*.c "},
      {Search::kCross, open, "C:\\P|*.cpp C:\\P|*.c "},
      {Search::kCross, closed, "C:\\P|*.c "},
      {Search::kCross, gap_first, "C:\\P|*.c "},
      {Search::kClass, open,
       "C:\\PC:\\P|*.h C:\\PC:\\P|*.cpp C:\\PC:\\P|*.c F:\\i|*.h F:\\i|*.cpp F:\\i|*.c "
       "D:\\s|*.h D:\\s|*.cpp D:\\s|*.c E:\\|*.h E:\\|*.cpp E:\\|*.c "},
      {Search::kClass, closed, "C:\\PC:\\P|*.h C:\\PC:\\P|*.c "},
      {Search::kClass, gaps, "C:\\PC:\\P|*.h D:\\s|*.h "},
      {Search::kClass, source_only, "C:\\PC:\\P|*.c D:\\s|*.c "},
      {Search::kClass, no_source, "C:\\PC:\\P|*.h F:\\i|*.h "},
      {Search::kClass, gap_first, "C:\\PC:\\P|*.h C:\\PC:\\P|*.c F:\\i|*.h F:\\i|*.c "},
  };
  for (const auto& c : cases) {
    CAPTURE(static_cast<int>(c.search));
    CAPTURE(std::string(c.expected));
    CHECK(steps(c.search, c.places) == c.expected);
  }
}

TEST_CASE("files come before directories, depth first in listing order") {
  PlayedTree tree;
  tree.files["C:\\P|*.c"] = {"z.c", "a.c"};
  tree.files["C:\\P\\sub|*.c"] = {"s.c"};
  tree.files["C:\\P\\sub\\deep|*.c"] = {"d.c"};
  tree.files["C:\\P\\other|*.c"] = {"o.c"};
  tree.files["C:\\P\\.git|*.c"] = {"g.c"};
  tree.directories["C:\\P"] = {".", "..", ".git", "sub", "other"};
  tree.directories["C:\\P\\sub"] = {".", "..", "deep"};
  const std::string top = "C:\\P\\z.c C:\\P\\a.c ";
  const struct {
    bool recurse;
    const char* stop_at;
    std::string expected;
  } cases[] = {
      {true, "never", top + "C:\\P\\sub\\s.c C:\\P\\sub\\deep\\d.c C:\\P\\other\\o.c "},
      {false, "never", top},
      {true, "C:\\P\\z.c", "C:\\P\\z.c "},
      {true, "C:\\P\\sub\\deep\\d.c", top + "C:\\P\\sub\\s.c C:\\P\\sub\\deep\\d.c "},
  };
  for (const auto& c : cases) {
    CAPTURE(std::string(c.stop_at));
    Visits visits;
    visits.stop_at = c.stop_at;
    CHECK(walkDirectory(tree, "C:\\P", "*.c", c.recurse, visits) == (visits.stop_at != "never"));
    CHECK(visits.paths == c.expected);
  }
  tree.files["E:\\|*.c"] = {"root.c"};
  Visits root;
  walkDirectory(tree, "E:\\", "*.c", true, root);
  CHECK(root.paths == "E:\\root.c ");
}

TEST_CASE("directories without end and paths without end are left") {
  PlayedTree tree;
  tree.endless = true;
  Visits visits;
  CHECK_FALSE(walkDirectory(tree, "C:\\P", "*.c", true, visits));
  CHECK(tree.listed == kDirectoryLimit);
  // "C:\P\" and 254 characters are 259.
  tree.files["C:\\P|*.c"] = {std::string(255, 'x'), std::string(254, 'y')};
  CHECK_FALSE(walkDirectory(tree, "C:\\P", "*.c", false, visits));
  CHECK(visits.paths == "C:\\P\\" + std::string(254, 'y') + ' ');
}

TEST_CASE("the header of the references") {
  const struct {
    const char* title;
    int found;
    const char* expected;
  } cases[] = {
      {"Borland C++ - demo", 3,
       "demo : cross reference \"Paint\"  (1/2/97 , 3:04:05 PM) : 3 founds"},
      {"Borland C++ -   demo - [a.cpp]", 1,
       "demo - [a.cpp] : cross reference \"Paint\"  (1/2/97 , 3:04:05 PM) : 1 found"},
      {"Borland C++", 2, " : cross reference \"Paint\"  (1/2/97 , 3:04:05 PM) : 2 founds"},
      {"Borland C++ -  ", 2, " : cross reference \"Paint\"  (1/2/97 , 3:04:05 PM) : 2 founds"},
  };
  for (const auto& c : cases) {
    CAPTURE(std::string(c.title));
    CHECK(crossReferenceHeader(c.title, "Paint", "1/2/97", "3:04:05 PM", c.found) == c.expected);
  }
}

TEST_CASE("the history keeps the last twenty texts, the most recent first") {
  PromptHistory history;
  for (int i = 1; i <= 20; ++i) {
    history.enter("name" + std::to_string(i));
  }
  CHECK(history.texts().size() == 20);
  CHECK(history.texts().front() == "name20");
  // An equal text moves and nothing is dropped; another case is another text.
  history.enter("name1");
  CHECK(history.texts().size() == 20);
  CHECK(history.texts().front() == "name1");
  CHECK(history.texts().back() == "name2");
  history.enter("Name1");
  CHECK(history.texts().size() == 20);
  CHECK(history.texts()[1] == "name1");
  CHECK(history.texts().back() == "name3");
}

TEST_CASE("hits are written and read back") {
  const ByteFile bytes;
  FILE* file = bytes.get();
  Tableau<QuickResu> hits;
  hits.append(new QuickResu(7, "C:\\P\\a.cpp", "Frame::Paint"));
  hits.append(new QuickResu(-1, "", ""));
  CHECK(hits.fWrite(file));
  // Count, then for each: line, length, text, zero byte, twice.
  CHECK(ftell(file) == 4 + (4 + 2 + 11 + 2 + 13) + (4 + 3 + 3));
  rewind(file);
  Tableau<QuickResu> read;
  CHECK(read.fRead(file));
  REQUIRE(read.count() == 2);
  CHECK(read[0]->line() == 7);
  CHECK(read[0]->file() == "C:\\P\\a.cpp");
  CHECK(std::string(static_cast<char*>(*read[0])) == "Frame::Paint");
  CHECK(read[1]->line() == -1);
  QuickResu beyond;
  CHECK_FALSE(beyond.fRead(file));
}

}  // namespace kesto
