// Whole generations. The cases of data/ are pairs: NAME.tree holds the sources, NAME.site
// the bodies of the pages in their order, each after a line "==== PATH".
#include <set>
#include <string>
#include <utility>

#include "addon/html/ht_projet.h"
#include "addon/html/site_pages.h"
#include "doctest.h"
#include "tests/data_file.h"
#include "tests/foundation/recorded_boxes.h"
#include "tests/html/played_site.h"

namespace kesto {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHead = "==== ";

void addTree(PlayedSite& site, const std::string& tree) {
  for (std::size_t at = 0; at < tree.size();) {
    const std::size_t line_end = tree.find('\n', at);
    const std::size_t next = std::min(tree.size(), tree.find("\n==== ", line_end) + 1);
    const std::size_t end = next == 0 ? tree.size() : next;
    const std::size_t path = at + kHead.size();
    site.sources.emplace_back(tree.substr(path, line_end - path),
                              tree.substr(line_end + 1, end - line_end - 1));
    at = end;
  }
}

bool generate(PlayedSite& site, const std::string& filters = "*.cpp;*.h") {
  return generateSite({"C:\\P", filters, "D\xE9mo"}, site, site, site);
}

}  // namespace

TEST_CASE("the site of each tree, byte for byte and in order") {
  int cases = 0;
  for (const auto& entry : fs::directory_iterator(TEST_DATA_DIR "/html/data")) {
    fs::path path = entry.path();
    if (path.extension() != ".tree") {
      continue;
    }
    ++cases;
    PlayedSite site;
    addTree(site, tests::contents(path));
    CHECK(generate(site));
    CHECK(site.directories == std::set<std::string>{"C:\\P\\kHTML"});
    tests::checkFile(path.replace_extension(".site"), site.pages);
  }
  CHECK(cases == 2);
}

TEST_CASE("files are read pattern by pattern, each after the text beside it") {
  PlayedSite site;
  for (const char* path :
       {"C:\\P\\z.cpp", "C:\\P\\.hidden.cpp", "C:\\P\\.git\\g.cpp", "C:\\P\\sub\\b.cpp",
        "C:\\P\\sub\\b.cpp.txt", "C:\\P\\a.h", "C:\\P\\a.h.txt", "C:\\Q\\q.cpp"}) {
    site.sources.emplace_back(path, "");
  }
  CHECK(generate(site, ";*.cpp;none;;*.h;*z.cpp;"));
  CHECK(site.reads ==
        "C:\\P\\z.cpp\n"
        "C:\\P\\sub\\b.cpp.txt\nC:\\P\\sub\\b.cpp\n"
        "C:\\P\\a.h.txt\nC:\\P\\a.h\n"
        "C:\\P\\z.cpp\n");
  CHECK(site.progress == "r1r2r3r4");
  CHECK(site.names.substr(site.names.find("a.h")) ==
        "a.h Contents.html\na.h Presentation.html\n"
        "b.cpp Contents.html\nb.cpp Presentation.html\n"
        "z.cpp Contents.html\nz.cpp Presentation.html\n"
        "z.cpp Contents.html\nz.cpp Presentation.html\n");
  CHECK(site.last_written == 13);
  CHECK(site.last_all == 13);
}

TEST_CASE("a page that cannot be written is left out, and none leaves the directory") {
  PlayedSite site;
  site.locked = "Title";
  site.sources.emplace_back("C:\\P\\a.h",
                            "/** \\..\\..\\evil::f\n*/\n/** a/b::f\n*/\n/** s:t::f\n*/\n"
                            "/** odd *::f\n*/\n/** ::Good\n*/\n");
  CHECK(generate(site));
  CHECK(site.names ==
        "Documentation D\xE9mo.html\nD\xE9mo Contents.html\nD\xE9mo FileList.html\n"
        "D\xE9mo Presentation.html\na.h Contents.html\na.h Presentation.html\n"
        "Class Good.html\nClass odd *.html\n");
  CHECK(site.last_written == 8);
  CHECK(site.last_all == 12);
}

TEST_CASE("a page is as it was until it is whole") {
  const auto project = [](PlayedSite& site) {
    site.sources.emplace_back("C:\\P\\a.h", "/** ::Good\n*/\n");
    site.directories.insert("C:\\P\\kHTML");
    site.put("C:\\P\\kHTML\\Class Good.html", "old");
    site.put("C:\\P\\kHTML\\a.h Contents.html", "old");
  };
  PlayedSite whole;
  project(whole);
  CHECK(generate(whole));
  CHECK(whole.last_written == 8);
  const int steps = std::exchange(whole.changes, 0);
  CHECK(steps == 16);
  whole.names.clear();
  const auto pages = whole.texts();
  // Nothing has changed: nothing is written.
  CHECK(generate(whole));
  CHECK(whole.changes == 0);
  CHECK(whole.last_written == 8);
  CHECK(whole.names.empty());

  for (int failing = 1; failing <= steps; ++failing) {
    for (const bool ends : {false, true}) {
      PlayedSite site;
      project(site);
      site.failing = failing;
      site.ends = ends;
      CHECK(generate(site));
      int written = 0;
      for (const auto& [path, text] : site.texts()) {
        const bool whole_page = pages.count(path) != 0 && text == pages.at(path);
        const bool grows = ends && path == "C:\\P\\kHTML\\.kesto-new\\page";
        CHECK((whole_page || grows || text == "old"));
        written += whole_page ? 1 : 0;
      }
      CHECK(site.last_written == written);
      site.failing = 0;
      CHECK(generate(site));
      CHECK(site.texts() == pages);
      CHECK(site.directories == whole.directories);
    }
  }

  // Where no directory can be made for them, pages grow beside the others.
  PlayedSite full;
  full.locked = "\\.kesto-new";
  project(full);
  CHECK(generate(full));
  CHECK(full.last_written == 8);
  CHECK(full.texts() == pages);
}

TEST_CASE("a class without documentation says so unless its methods speak for it") {
  const struct {
    bool documented, has_method, says_so;
  } cases[] = {{false, false, true}, {false, true, false}, {true, true, false}};
  for (const auto& c : cases) {
    CAPTURE(c.documented);
    CAPTURE(c.has_method);
    htProjet projet("C:\\P", "*.h", "P");
    htClass& shown = projet.findOrAddClass("Stack", projet.addFile("C:\\P\\a.h"));
    shown.documentation = c.documented ? "x\n" : "";
    if (c.has_method) {
      projet.findOrAddMethod(shown, "push", EntryKind::kAny).documentation = "y\n";
    }
    Page page;
    SitePages(projet).classPage(page, shown);
    CHECK((page.text.find("Pas de documentation") != std::string::npos) == c.says_so);
  }
}

TEST_CASE("a page for what the project does not have fails its check") {
  htProjet projet("C:\\P", "*.h", "P");
  htFile& file = projet.addFile("C:\\P\\a.h");
  projet.findOrAddFunction("f", file, EntryKind::kAny);
  const htSymbol stranger("f");
  const SitePages pages(projet);
  Page page;
  CHECK(pages.symbolPage(page, *projet.functions[0]));
  CHECK(takeBoxes().empty());
  CHECK_FALSE(pages.symbolPage(page, stranger));
  const auto boxes = takeBoxes();
  REQUIRE(boxes.size() == 1);
  CHECK(boxes[0].text.starts_with("Assertion failed: fnc!=ERRTAB || def!=ERRTAB, file html, "));
}

}  // namespace kesto
