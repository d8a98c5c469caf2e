#include "addon/ide/cursor_word.h"

#include <string>

#include "doctest.h"

TEST_CASE("the word around a column") {
  const struct {
    const char* line;
    int column;
    const char* word;
  } rows[] = {
      {"int count = 0;", 5, "count"},
      {"int count = 0;", 9, "count"},
      {"int count = 0;", 10, "count"},  // the blank behind it touches it
      {"int count = 0;", 11, ""},       // "=" with a blank before it
      {"a->b_2", 4, "b_2"},
      {"abc", 3, "abc"},
      {"abc", 4, ""},  // past the end
      {"abc", 0, ""},
      {"", 1, ""},
      {"x\tyz", 3, "yz"},
      {"caf\xe9s", 2, "caf"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.line);
    CAPTURE(row.column);
    CHECK(kesto::wordAround(row.line, row.column) == row.word);
  }
  const std::string longest(300, 'w');
  CHECK(kesto::wordAround(longest, 290) == std::string(255, 'w'));
}

TEST_CASE("the word before a column") {
  CHECK(kesto::wordBefore("  print(x", 8) == "print");
  CHECK(kesto::wordBefore("  print(x", 6) == "pri");
  CHECK(kesto::wordBefore("print", 1).empty());
  CHECK(kesto::wordBefore("print", 6) == "print");
  CHECK(kesto::wordBefore("print", 7).empty());
  CHECK(kesto::wordBefore("a b", 3).empty());
}
