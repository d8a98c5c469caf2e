#include "addon/navigation/include_search.h"

#include <set>
#include <string>

#include "addon/foundation/path.h"
#include "doctest.h"
#include "tests/foundation/played_tree.h"

namespace kesto {

namespace {

class Files : public FileLookup {
 public:
  bool isFile(const char* path) override { return paths.count(path) > 0; }
  std::set<std::string> paths;
};

std::string find(PlayedTree& tree, Files& files, std::string_view path, std::string_view name) {
  String found("untouched");
  Folders folders(tree);
  const bool success = findInclude(folders, files, path, name, found);
  CHECK(success == !(found == "untouched"));
  return found.text();
}

}  // namespace

TEST_CASE("a header is sought in each directory, then below it, depth first") {
  PlayedTree tree;
  tree.folders["C:\\P"] = {".git", "b", "a"};
  tree.links["C:\\P"] = {"link"};
  tree.folders["C:\\P\\b"] = {"deep"};
  Files files;
  files.paths = {"C:\\P\\link\\x.h", "C:\\P\\b\\deep\\x.h", "C:\\P\\a\\x.h", "C:\\P\\a\\y.h",
                 "C:\\P\\.git\\z.h", "D:\\inc\\x.h",        "D:\\inc\\z.h"};
  const struct {
    const char *path, *name, *found;
  } cases[] = {
      {"C:\\P;D:\\inc", "x.h", "C:\\P\\b\\deep\\x.h"},
      {"D:\\inc;C:\\P", "x.h", "D:\\inc\\x.h"},
      {"C:\\P;D:\\inc", "y.h", "C:\\P\\a\\y.h"},
      {"C:\\P;;D:\\inc\\", "z.h", "D:\\inc\\z.h"},
      {"C:\\P", "deep", "untouched"},  // a directory is no answer
      {"C:\\P", "", "untouched"},
      {"", "x.h", "untouched"},
  };
  for (const auto& c : cases) {
    CAPTURE(c.path);
    CAPTURE(c.name);
    CHECK(find(tree, files, c.path, c.name) == c.found);
  }
}

// Those that stand on the path are looked into all the same, but for what is below them.
TEST_CASE("directories without end leave the path's own") {
  PlayedTree tree;
  tree.endless = true;
  Files files;
  files.paths = {"D:\\inc\\x.h", "D:\\inc\\loop\\y.h"};
  CHECK(find(tree, files, "C:\\P;C:\\Q;D:\\inc", "x.h") == "D:\\inc\\x.h");
  CHECK(tree.listed.size() == kDirectoryLimit);
  CHECK(find(tree, files, "C:\\P;D:\\inc", "y.h") == "untouched");
}

TEST_CASE("the search path") {
  CHECK(includeSearchPath("C:\\P", "D:\\inc;E:\\") == "C:\\P;D:\\inc;E:\\");
  CHECK(includeSearchPath("C:\\P", "") == "C:\\P");
}

}  // namespace kesto
