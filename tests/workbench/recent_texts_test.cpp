#include "workbench/app/recent_texts.h"

#include "doctest.h"
#include "workbench/windows/path_text.h"

using namespace workbench;

TEST_CASE("the latest text comes first, none twice, and the oldest goes") {
  RecentTexts recent(3, samePath);
  for (const char* path : {"a", "b", "A", "c"}) {
    CHECK(recent.add(path));
  }
  CHECK_FALSE(recent.add("c"));
  CHECK_FALSE(recent.add(""));
  CHECK(recent.all() == std::vector<std::string>{"c", "A", "b"});
  CHECK(recent.add("d"));
  CHECK(recent.remove("a"));
  CHECK_FALSE(recent.remove("a"));
  CHECK(recent.all() == std::vector<std::string>{"d", "c"});
}

TEST_CASE("a path in a menu keeps its ends and its &") {
  CHECK(menuTextOfPath(2, "C:\\a&b.cpp") == "&2 C:\\a&&b.cpp");
  const std::string folder(60, 'x');
  CHECK(menuTextOfPath(1, "C:\\" + folder + "\\name.cpp") ==
        "&1 C:\\" + folder.substr(0, 9) + "..." + folder.substr(0, 36) + "\\name.cpp");
}
