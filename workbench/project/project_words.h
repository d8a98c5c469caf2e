// The words of one line of a project file. Plain functions, any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace workbench {

// The first line of a project file, before the number of its version.
inline constexpr char kProjectHead[] = "Workbench project ";
inline constexpr int kProjectVersion = 1;

struct ProjectWord {
  std::string text;
  bool quoted = false;
};

// Without blanks at both ends.
std::string_view trimmed(std::string_view line);
// Splits at blanks; a word in quotes may hold blanks and escapes (\\, \", \n, \r,
// \t, \xHH). False with a sentence when a quote or an escape is not complete.
bool splitProjectWords(std::string_view line, std::vector<ProjectWord>* words, std::string* reason);
// The text in quotes, with escapes where they are needed.
std::string quotedWord(std::string_view text);

}  // namespace workbench
