#include <string>

#include "doctest.h"
#include "workbench/script/script_line.h"
#include "workbench/script/verbs.h"

using workbench::parseScript;
using workbench::ScriptError;
using workbench::ScriptLine;

namespace {

// "1 verb[arg][arg]; 3 verb" for what was read.
std::string read(std::string_view text) {
  std::vector<ScriptLine> lines;
  ScriptError error;
  if (!parseScript(text, &lines, &error)) {
    return "line " + std::to_string(error.line) + ": " + error.text;
  }
  std::string out;
  for (const ScriptLine& line : lines) {
    if (line.rounds != 0) {
      out += "; " + std::to_string(line.rounds) + " times from " +
             std::to_string(lines[line.first_repeated].number);
      continue;
    }
    out += (out.empty() ? "" : "; ") + std::to_string(line.number) + " " + line.verb;
    for (const std::string& arg : line.args) {
      out += "[" + arg + "]";
    }
  }
  return out;
}

}  // namespace

TEST_CASE("Lines of a script become verbs and arguments") {
  const struct {
    std::string_view text;
    const char* read;
  } rows[] = {
      {"", ""},
      {"close", "1 close"},
      {"\n# words\n  \t\n\t#quit\n \tclose \t\n", "5 close"},
      {"mark\r\nquit\r\n", "1 mark; 2 quit"},
      {"edit a.cpp\t12", "1 edit[a.cpp][12]"},
      {R"(choose "Kesto|Options...")", "1 choose[Kesto|Options...]"},
      {R"(echo "")", "1 echo[]"},
      {R"(echo "say ""it"" """)", R"(1 echo[say "it" "])"},
      {R"(echo a"b)", R"(1 echo[a"b])"},      // a quote within a bare word is a letter
      {R"(echo C:\a\)", R"(1 echo[C:\a\])"},  // a backslash is a backslash
      {"repeat 2\nrepeat 10\nmark\nend-repeat\n\nquit\nend-repeat",
       "1 repeat[2]; 2 repeat[10]; 3 mark; 10 times from 3; 6 quit; 2 times from 2"},
      {"echo #1", "1 echo[#1]"},          // comments take whole lines
      {"echo \"a\tb\"", "1 echo[a\tb]"},  //
      {"\xEF\xBB\xBF"
       "echo \xC3\xA9",
       "1 echo[\xE9]"},               // UTF-8 with its mark
      {"echo \xE9", "1 echo[\xE9]"},  // Windows-1252
  };
  for (const auto& row : rows) {
    CAPTURE(std::string(row.text));
    CHECK(read(row.text) == row.read);
  }
}

TEST_CASE("A script is refused as a whole, with the line of its first fault") {
  const struct {
    const char* text;
    const char* fault;
  } rows[] = {
      {"close\n\necho \"a", "line 3: a quote is left open"},
      {"echo \"a\"\"", "line 1: a quote is left open"},
      {"echo \"a\"b", "line 1: text follows a closing quote"},
      {"echo \"a\"#", "line 1: text follows a closing quote"},
      {"# x\r\nclos\r\n", "line 2: unknown verb: clos"},
      {"Close", "line 1: unknown verb: Close"},
      {"close now", "line 1: usage: close"},
      {"caret 1", "line 1: usage: caret LINE COL"},
      {"edit", "line 1: usage: edit FILE [LINE]"},
      {"repeat 2\nrepeat 2\nend-repeat", "line 1: this repeat has no end"},
      {"repeat 2\nend-repeat\nend-repeat", "line 3: there is nothing to repeat"},
      {"repeat 0\nend-repeat", "line 2: nothing is done \"0\" times"},
      {"repeat 2x\nend-repeat", "line 2: nothing is done \"2x\" times"},
      {"edit a 1 2", "line 1: usage: edit FILE [LINE]"},
  };
  for (const auto& row : rows) {
    CAPTURE(std::string(row.text));
    CHECK(read(row.text) == row.fault);
  }
}
