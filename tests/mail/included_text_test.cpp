#include "addon/mail/included_text.h"

#include "doctest.h"

using namespace std::string_literals;

namespace {

// 70 hyphens, in sevens.
const std::string kClosing = [] {
  std::string rule;
  for (int i = 0; i < 10; ++i) {
    rule += "-------";
  }
  return rule + "\nThat's all folks !\n";
}();

}  // namespace

TEST_CASE("what of a file goes into a note, and what stays in the file") {
  const struct {
    std::string bytes, text, added, rest;
  } rows[] = {
      {"", "", "", ""},
      {"a\r\nb\r\n", "a\nb\n", "", ""},
      {"no end", "no end", "", ""},
      {"long " + std::string(5000, 'x') + "\r\n", "long " + std::string(5000, 'x') + "\n", "", ""},
      {"a\0b\r\nc\0"s, "a b\nc ", "", ""},
      {"caf\xE9\r\n", "caf\xE9\n", "", ""},
      // Added while the mail was under way.
      {"a\r\n", "a\n", "later\r\nlast\r\n", "later\nlast\n"},
      // Behind the end of a text in text mode.
      {"a\r\n\x1A"
       "b\r\n\x1A"
       "c",
       "a\n", "",
       "b\n\x1A"
       "c"},
      {"a\r\n\x1A", "a\n", "b", "b"}};
  for (const auto& row : rows) {
    CAPTURE(row.bytes);
    const kesto::IncludedText included(row.bytes);
    std::string note = "body ";
    included.appendTo(note);
    CHECK(note == "body " + row.text + kClosing);
    const std::optional<std::string> rest = included.restOf(row.bytes + row.added);
    REQUIRE(rest.has_value());
    CHECK(*rest == row.rest);
  }
  for (const char* now : {"", "a\r", "b\r\n", "A\r\nmore"}) {
    CAPTURE(now);
    CHECK(!kesto::IncludedText("a\r\n").restOf(now).has_value());
  }
}
