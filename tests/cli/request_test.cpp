#include "cli/request.h"

#include "cli/output.h"
#include "cli/text_form.h"
#include "doctest.h"

namespace kesto::cli {

namespace {

// "OPERANDS|OPTION=VALUES", or the reason why not.
std::string read(const char* name, const std::vector<std::string>& arguments) {
  Request request;
  std::string text;
  if (!readArguments(*findCommand(name), arguments, request, text)) {
    return text;
  }
  for (const std::string& operand : request.operands) {
    text += operand + ' ';
  }
  for (const char* option : {"project", "sources", "json", "unsorted", "keywords", "help"}) {
    if (request.has(option)) {
      text += '|' + std::string(option) + '=' + request.list(option);
    }
  }
  return text;
}

}  // namespace

TEST_CASE("operands and options come in any order") {
  CHECK(read("functions", {"a", "--json", "-", "--unsorted", "b c"}) == "a - b c |json=|unsorted=");
  CHECK(read("xref", {"--project=p", "--sources", "*.c", "N", "--sources", "*.h"}) ==
        "N |project=p|sources=*.c;*.h");
  CHECK(read("xref", {"--", "--name"}) == "--name ");
  CHECK(read("xref", {"--project", "-", "N"}) == "N |project=-");
  CHECK(read("complete", {"p", "--keywords", "a", "-", "b", "--json", "--keywords", "c"}) ==
        "p |json=|keywords=a;-;b;c");
  CHECK(read("find", {"-h"}) == "|help=");
  CHECK(read("html", {}).empty());
  CHECK(findCommand("nothing") == nullptr);

  CHECK(read("xref", {}) == "it needs NAME");
  CHECK(read("xref", {"a", "b"}) == "there is nothing to do with \"b\"");
  CHECK(read("xref", {"a", "--unsorted"}) == "there is no option --unsorted");
  CHECK(read("xref", {"a", "-x"}) == "there is no option -x");
  CHECK(read("xref", {"a", "--project"}) == "--project needs a value: PATH");
  CHECK(read("complete", {"a", "--keywords", "--json"}) == "--keywords needs a value: FILE...");
  CHECK(read("xref", {"a", "--json=1"}) == "--json takes no value");
}

TEST_CASE("texts are shown in UTF-8, whatever they were") {
  const struct {
    const char* text;
    const char* utf8;
    const char* ansi;
  } cases[] = {{"plain", "plain", "plain"},
               {"gr\xc3\xb6\xc3\x9f", "gr\xc3\xb6\xc3\x9f", "gr\xf6\xdf"},
               {"gr\xf6\xdf", "gr\xc3\xb6\xc3\x9f", "gr\xf6\xdf"},
               {"\x80 5", "\xe2\x82\xac 5", "\x80 5"},
               {"\xd0\x96", "\xd0\x96", "?"},
               {"\xc3\xb6\xff", "\xc3\x83\xc2\xb6\xc3\xbf", "\xc3\xb6\xff"}};
  for (const auto& one : cases) {
    CHECK(utf8Of(one.text) == one.utf8);
    CHECK(ansiOf(one.text) == one.ansi);
  }
  CHECK(jsonOf("a\"\\\t\r\n\x01\x7f\xc3\xb6") == "\"a\\\"\\\\\\t\\r\\n\\u0001\\u007f\xc3\xb6\"");
  CHECK(jsonOf("\xff!") == "\"\xef\xbf\xbd!\"");
  CHECK(Row().text("a", "\xf6").number("n", -1).flag("f", true).json() ==
        "\"a\":\"\xc3\xb6\",\"n\":-1,\"f\":true");
}

}  // namespace kesto::cli
