#include <sstream>
#include <string>
#include <vector>

#include "addon/foundation/directory_walk.h"
#include "addon/foundation/path.h"
#include "addon/foundation/tableau.h"
#include "addon/ide/frame_title.h"
#include "addon/navigation/cross_header.h"
#include "addon/navigation/prompt_history.h"
#include "addon/navigation/quick_resu.h"
#include "addon/navigation/search_plan.h"
#include "doctest.h"
#include "tests/foundation/byte_file.h"
#include "tests/foundation/played_tree.h"

namespace kesto {

namespace {

std::string steps(Search search, const SearchPlaces& places) {
  std::string text;
  for (const SearchStep& step : planSearch(search, places)) {
    text += step.directory + '|' + step.mask + ' ';
  }
  return text;
}

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
  tree.sources["C:\\P"] = {"z.c", "a.c", "a.h"};
  tree.sources["C:\\P\\sub"] = {"s.c"};
  tree.sources["C:\\P\\sub\\deep"] = {"d.c"};
  tree.sources["C:\\P\\other"] = {"o.c"};
  tree.sources["C:\\P\\.git"] = {"g.c"};
  tree.sources["C:\\P\\link"] = {"l.c"};
  tree.links["C:\\P"] = {"link"};
  tree.folders["C:\\P"] = {".", "..", ".git", "sub", "other"};
  tree.folders["C:\\P\\sub"] = {".", "..", "deep"};
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
    Folders folders(tree);
    CHECK(walkDirectory(folders, "C:\\P", "*.c", c.recurse, visits) == (visits.stop_at != "never"));
    CHECK(visits.paths == c.expected);
  }
  tree.sources["E:\\"] = {"root.c"};
  Visits root;
  Folders folders(tree);
  walkDirectory(folders, "E:\\", "*.c", true, root);
  CHECK(root.paths == "E:\\root.c ");
}

TEST_CASE("a search lists a directory once, whatever the masks and wherever it starts") {
  PlayedTree tree;
  tree.sources["P"] = {"x.html", std::string("y.c\0\0", 5)};
  tree.short_names["x.html"] = "X~1.HTM";
  tree.folders["P"] = {"sub"};
  tree.sources["P\\sub"] = {"s.h"};
  Folders folders(tree);
  Visits visits;
  for (const char* mask : {"*.htm", "*.h", "*.c"}) {
    walkDirectory(folders, "P", mask, true, visits);
  }
  walkDirectory(folders, "P\\sub", "*.h", true, visits);
  CHECK(visits.paths == "P\\x.html P\\sub\\s.h P\\y.c P\\sub\\s.h ");
  CHECK(tree.listed == PlayedTree::Names{"P|*", "P\\sub|*"});
  // The system is asked for what only it can judge; what it lists besides files is none.
  visits.paths.clear();
  walkDirectory(folders, "P", "?.c", false, visits);
  CHECK(visits.paths == "P\\odd.c ");
  CHECK(tree.listed.back() == "P|?.c");
}

TEST_CASE("what fits a mask") {
  const struct {
    const char* mask;
    const char* fits;   // names, a blank after each
    const char* other;  // names that do not
  } cases[] = {
      {"*", "a a.c .x ", ""},
      {"*.*", "a a.c a.b.c .x ", ""},
      {"*.c", "a.c A.C a.b.c .c ", "a a.cc a.c.x c "},
      {"*.H", "a.h ", "x.html "},
      {"*.c*", "a.c a.cpp a.c.x ", "a.xc cc "},
      {"main.cpp", "main.cpp Main.CPP ", "main.cp main.cppp amain.cpp "},
      {"a*", "a ab A.c ", "ba "},
      {"a.*", "a a.b A.b.c ", "ab ab.c "},
      {"a*b*.*", "ab axb.c abab aab ", "ba a.c "},
      {"*.c.*", "a.c a.c.x ", "a a.x.cc "},
      {"*a*b.*c", "ab.c xabxb.xc a.b.c ", "ab abc ab.cx "},
      {"**a", "a ba ", "ab "},
  };
  for (const auto& c : cases) {
    CAPTURE(c.mask);
    const FileMask mask(c.mask);
    CHECK(mask.plain());
    for (const bool fit : {true, false}) {
      std::istringstream names(fit ? c.fits : c.other);
      for (std::string name; names >> name;) {
        CAPTURE(name);
        CHECK(mask.fits(name) == fit);
      }
    }
  }
  for (const char* mask :
       {"", "a?", "*.", "a..*", "*.c ", "a<", "a>", "a\"", "s\\*.c", "C:*", "\xe9*"}) {
    CAPTURE(mask);
    CHECK_FALSE(FileMask(mask).plain());
  }
}

TEST_CASE("directories without end and paths without end are left") {
  PlayedTree tree;
  tree.endless = true;
  Visits visits;
  Folders folders(tree);
  for (const char* root : {"C:\\P", "C:\\Q"}) {
    CHECK_FALSE(walkDirectory(folders, root, "*.c", true, visits));
    CHECK_FALSE(walkDirectory(folders, root, "*.h", true, visits));
    CHECK(tree.listed.size() == kDirectoryLimit);
  }
  // "C:\R\" and ".c" are the 7 beside.
  const std::string longest = std::string(kPathLimit - 7, 'y') + ".c";
  tree.sources["C:\\R"] = {'x' + longest, longest};
  Folders others(tree);
  CHECK_FALSE(walkDirectory(others, "C:\\R", "*.c", false, visits));
  CHECK(visits.paths == "C:\\R\\" + longest + ' ');
}

TEST_CASE("who looks on ends all walks of a search") {
  class Watch : public WalkWatch {
   public:
    explicit Watch(int most) : most_(most) {}
    bool goOn(int directories, int files) override {
      told += std::to_string(directories) + '/' + std::to_string(files) + ' ';
      return --most_ > 0;
    }
    std::string told;

   private:
    int most_;
  };
  PlayedTree tree;
  tree.sources["P"] = {"a.c", "b.c"};
  tree.folders["P"] = {"sub"};
  tree.sources["P\\sub"] = {"c.c", "d.c"};
  Watch watch(5);
  Folders folders(tree, &watch);
  Visits visits;
  CHECK(walkDirectory(folders, "P", "*.c", true, visits));
  CHECK(folders.stopped());
  CHECK(walkDirectory(folders, "P", "*.h", true, visits));
  CHECK(visits.paths == "P\\a.c P\\b.c P\\sub\\c.c ");
  CHECK(watch.told == "1/0 1/1 1/2 2/2 2/3 ");
}

TEST_CASE("the header of the references") {
  const struct {
    const char *title, *maximised, *project;
  } cases[] = {
      {"Borland C++ - demo", "", "demo"},
      {"Borland C++ -   demo - [a.cpp]", "", "demo - [a.cpp]"},
      {"Borland C++ - a - [b] - [C:\\d - [e].cpp:2 *]", "C:\\d - [e].cpp:2 *", "a - [b]"},
      {"Borland C++ - demo - [C:\\long", "C:\\longer.cpp", "demo"},
      {"Borland C++", "", ""},
      {"Borland C++ -  ", "", ""},
  };
  for (const auto& c : cases) {
    CAPTURE(std::string(c.title));
    CHECK(projectOfTitle(c.title, c.maximised) == c.project);
  }
  CHECK(crossReferenceHeader("demo", "Paint", "1/2/97", "3:04:05 PM", 3) ==
        "demo : cross reference \"Paint\"  (1/2/97 , 3:04:05 PM) : 3 founds");
  CHECK(crossReferenceHeader("", "f", "d", "t", 1) ==
        " : cross reference \"f\"  (d , t) : 1 found");
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
