// Identifiers, paths, titles, lists and the numbers of the settings.
#include <climits>
#include <string>
#include <string_view>
#include <vector>

#include "addon/foundation/identifier.h"
#include "addon/foundation/name_table.h"
#include "addon/foundation/path.h"
#include "addon/foundation/settings_values.h"
#include "doctest.h"

namespace kesto {

TEST_CASE("values by names stay where they are, however many join") {
  NameTable<std::string, int> table;
  CHECK(table.find("") == nullptr);
  int& first = table[""];
  CHECK(first == 0);
  for (int i = 1; i < 1000; ++i) {
    table[std::to_string(i)] = i;
  }
  first = -1;
  CHECK(table.size() == 1000);
  CHECK(table.find("") == &first);
  CHECK(&table[""] == &first);
  for (int i = 1; i < 1000; ++i) {
    const int* const found = table.find(std::to_string(i));
    REQUIRE(found != nullptr);
    CHECK(*found == i);
  }
  CHECK(table.find("1000") == nullptr);
  table.clear();
  CHECK(table.find("1") == nullptr);
  CHECK(table["1"] == 0);
  CHECK(table.size() == 1);
}

TEST_CASE("what an identifier may hold") {
  const std::string held = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
  for (int code = 0; code < 256; ++code) {
    CAPTURE(code);
    const char c = static_cast<char>(code);
    CHECK(isIdentifierCharacter(c) == (held.find(c) != std::string::npos));
  }
}

TEST_CASE("the parts of a path") {
  const struct {
    std::string_view path, directory, name;
  } cases[] = {
      {"C:\\SRC\\A.CPP", "C:\\SRC", "A.CPP"},
      {"c:/src\\b/a.h", "c:/src\\b", "a.h"},
      {"a.cpp", "", "a.cpp"},
      {"dir\\", "dir", ""},
      {"", "", ""},
  };
  for (const auto& c : cases) {
    CAPTURE(c.path);
    CHECK(directoryPart(c.path) == c.directory);
    CHECK(fileNamePart(c.path) == c.name);
  }
}

TEST_CASE("a name in a directory, whose separator may be there") {
  const struct {
    std::string_view directory;
    const char* path;
  } cases[] = {{"C:\\P", "C:\\P\\a.h"}, {"E:\\", "E:\\a.h"}, {"c:/p/", "c:/p/a.h"}, {"", "a.h"}};
  for (const auto& c : cases) {
    CAPTURE(c.directory);
    CHECK(joinPath(c.directory, "a.h") == c.path);
  }
}

TEST_CASE("what a title names") {
  const struct {
    std::string_view title, file;
  } cases[] = {
      {"C:\\SRC\\A.CPP", "C:\\SRC\\A.CPP"},
      {"C:\\SRC\\A.CPP:2", "C:\\SRC\\A.CPP"},
      {"C:\\SRC\\A.CPP:2 *", "C:\\SRC\\A.CPP"},
      {"C:\\SRC\\A.CPP *", "C:\\SRC\\A.CPP"},
      {"C:\\MY DIR\\A.CPP *", "C:\\MY DIR\\A.CPP"},
      {"A.CPP  ", "A.CPP"},
      {"AB:2", "AB"},
      {"A:2", "A:2"},  // the colon is the second character: a drive's
      {"* ", "* "},
      {"", ""},
  };
  for (const auto& c : cases) {
    CAPTURE(c.title);
    CHECK(fileOfTitle(c.title) == c.file);
  }
  const std::string longer = "C:" + std::string(177, 'x') + "y:2 *";
  CHECK(fileOfTitle(longer) == longer.substr(0, 178));
  CHECK(fileOfTitle(longer, longer.size()) == longer.substr(0, 180));

  CHECK(documentationTitle("C:\\A.CPP:2 * *") == "C:\\A.CPP:2");
  CHECK(documentationTitle(" * ").empty());
  CHECK(fileWithoutLine("c:\\src\\a.cpp:120") == "c:\\src\\a.cpp");
  CHECK(fileWithoutLine("c:\\src\\a.cpp:12:4") == "c:\\src\\a.cpp");
  CHECK(fileWithoutLine("c:") == "c:");
}

TEST_CASE("which titles a file name matches") {
  const struct {
    std::string_view title, wanted;
    bool matches;
  } cases[] = {
      {"C:\\SRC\\FILE.CPP:2", "FILE.CPP", true},
      {"C:\\SRC\\MYFILE.CPP", "FILE.CPP", false},
      {"c:/src/file.cpp", "FILE.CPP", true},
      {"File.cpp", "FILE.CPP", true},
      {"C:\\FILE.CPP\\FILE.CPP", "FILE.CPP", true},
      {"C:\\SRC\\FILE.CPP *", "FILE.CPP", false},
      {"C:\\SRC\\FILE.CPPX", "FILE.CPP", false},
      {"C:\\SRC\\file.cpp", "SRC\\FILE.CPP", true},
      {"FILE", "FILE.CPP", false},
      {"\xE9t\xE9.h", "\xE9T\xE9.H", true},  // accents keep their case
      {"\xE9t\xE9.h", "\xC9T\xC9.H", false},
  };
  for (const auto& c : cases) {
    CAPTURE(c.title);
    CAPTURE(c.wanted);
    CHECK(titleMatches(c.title, c.wanted) == c.matches);
  }
  char text[] = "aZz{\xE9";
  upperAscii(text);
  CHECK(std::string(text) == "AZZ{\xE9");
}

TEST_CASE("an empty entry ends a list") {
  const struct {
    std::string_view list;
    std::vector<std::string_view> entries;
  } cases[] = {
      {"*.cpp;*.cc;*.c", {"*.cpp", "*.cc", "*.c"}},
      {"a;;b", {"a"}},
      {" *.cpp ; *.h;*.c ", {"*.cpp", "*.h", "*.c"}},
      {"a; ;b", {"a"}},
      {"a;", {"a"}},
      {";a", {}},
      {"", {}},
  };
  for (const auto& c : cases) {
    CAPTURE(c.list);
    std::vector<std::string_view> entries;
    std::string_view rest = c.list;
    std::string_view entry;
    while (nextListEntry(rest, entry)) {
      entries.push_back(entry);
    }
    CHECK(entries == c.entries);
  }
}

TEST_CASE("numbers of the settings") {
  const struct {
    const char* text;
    int value;
  } cases[] = {
      {"12", 12},
      {"-1", -1},
      {" 7x", 7},
      {"", 50},
      {"x7", 50},
      {"not found", 50},
      {"+3", 3},
      {"-", 50},
      {"0x10", 0},
      {"2147483647", INT_MAX},
      {"99999999999999999999", INT_MAX},
      {"-99999999999999999999", INT_MIN},
  };
  for (const auto& c : cases) {
    CAPTURE(c.text);
    CHECK(parseInteger(c.text, 50) == c.value);
  }
  char text[kIntegerTextSize];
  formatInteger(INT_MIN, text);
  CHECK(std::string(text) == "-2147483648");
}

}  // namespace kesto
