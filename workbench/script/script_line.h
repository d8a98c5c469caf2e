// The text of a script as a list of verbs with their arguments. Plain values.
//
// One verb a line. Blanks separate the arguments; an argument in double quotes
// may hold blanks, and a doubled quote within it stands for one. A line that is
// empty or starts with "#" (after blanks) is left out. Lines end with CR LF or LF.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

struct ScriptLine {
  int number = 0;  // from 1
  std::string verb;
  std::vector<std::string> args;  // Windows-1252
  // Of an "end-repeat": which of the lines comes next, and how often it is to come.
  size_t first_repeated = 0;
  long rounds = 0;
};

struct ScriptError {
  int line = 0;
  std::string text;
};

// A script is UTF-8, with or without its mark, or else Windows-1252. Returns
// false, with the first fault in error, when a quote is left open, text follows
// a closing quote, a verb is unknown, its arguments are too few or too many, or a
// "repeat" has no end.
bool parseScript(std::string_view text, std::vector<ScriptLine>* lines, ScriptError* error);

}  // namespace workbench
