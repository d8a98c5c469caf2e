#include "addon/topbar/recent_list.h"

#include "doctest.h"

namespace {

using Paths = std::vector<std::string>;

kesto::RecentList listOf(const Paths& paths, int maximum, int slots = 5) {
  kesto::RecentList list(slots, maximum);
  list.assign(paths);
  return list;
}

Paths pathsOf(const kesto::RecentList& list) {
  Paths paths;
  for (int i = 0; i < list.count(); ++i) {
    paths.emplace_back(list.at(i));
  }
  return paths;
}

}  // namespace

TEST_CASE("operations on a list of recent files") {
  enum Operation { kAddNew, kUse, kRemove, kMaximum };
  const struct {
    const char* what;
    Paths before;
    int maximum;
    Operation operation;
    const char* path;
    Paths after;
  } rows[] = {
      {"a new one comes first", {"a", "b"}, 4, kAddNew, "c", {"c", "a", "b"}},
      {"a listed one keeps its place", {"a", "b"}, 4, kAddNew, "b", {"a", "b"}},
      {"listed in another case", {"a", "b"}, 4, kAddNew, "B", {"a", "b"}},
      {"full: the last one goes", {"a", "b"}, 2, kAddNew, "c", {"c", "a"}},
      {"full and listed: none goes", {"a", "b"}, 2, kAddNew, "b", {"a", "b"}},
      {"no room at all", {}, 0, kAddNew, "c", {}},
      {"a maximum below zero", {}, -1, kUse, "c", {}},
      {"a maximum beyond the slots",
       {"1", "2", "3", "4", "5"},
       2000000000,
       kAddNew,
       "6",
       {"6", "1", "2", "3", "4"}},
      {"used: moves to the front", {"a", "b", "c"}, 4, kUse, "c", {"c", "a", "b"}},
      {"used in another case, full", {"a", "b"}, 2, kUse, "B", {"B", "a"}},
      {"used for the first time, full", {"a", "b"}, 2, kUse, "c", {"c", "a"}},
      {"used, and first already", {"a", "b"}, 4, kUse, "a", {"a", "b"}},
      {"removed", {"a", "b", "c"}, 4, kRemove, "b", {"a", "c"}},
      {"removed in another case", {"a", "b"}, 4, kRemove, "B", {"a"}},
      {"a lower maximum cuts", {"a", "b", "c"}, 4, kMaximum, "1", {"a"}},
      {"more than there is room for", {"a", "b", "c"}, 2, kRemove, "x", {"a", "b"}},
      {"a higher one does not", {"a", "b", "c"}, 3, kMaximum, "4", {"a", "b", "c"}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.what);
    kesto::RecentList list = listOf(row.before, row.maximum);
    switch (row.operation) {
      case kAddNew:
        list.addNew(row.path);
        break;
      case kUse:
        list.use(row.path);
        break;
      case kRemove:
        list.remove(row.path);
        break;
      case kMaximum:
        list.setMaximum(std::stoi(row.path));
        break;
    }
    CHECK(pathsOf(list) == row.after);
    CHECK(list.at(list.count()) == nullptr);
    CHECK(list.at(-1) == nullptr);
  }
}

TEST_CASE("paths are cut to their slots, and compared as they were cut") {
  const std::string slot(255, 'x');
  kesto::RecentList list = listOf({slot + "1", "short"}, 5);
  CHECK(pathsOf(list) == Paths{slot, "short"});
  list.addNew(slot + "2");
  CHECK(list.count() == 2);
  list.use(std::string(255, 'X') + "3");
  CHECK(pathsOf(list) == Paths{std::string(255, 'X'), "short"});
  list.remove(std::string(2000, 'X'));
  CHECK(pathsOf(list) == Paths{"short"});
}

TEST_CASE("headers by their names") {
  const struct {
    const char* path;
    const char* listed;
    bool header;
  } rows[] = {{"C:\\inc\\a.h:2", "C:\\inc\\a.h", true},
              {"C:\\inc\\A.H", "C:\\inc\\A.H", true},
              {"C:\\a.cpp:1", "C:\\a.cpp", false},
              {"C:\\a.hpp", "C:\\a.hpp", false},
              {"C:h", "C:h", true},
              {"a.h:1:2", "a.h", true},
              {"", "", false}};
  for (const auto& row : rows) {
    CAPTURE(row.path);
    CHECK(kesto::headerPath(row.path) == row.listed);
    CHECK(kesto::isHeader(kesto::headerPath(row.path)) == row.header);
  }
}
