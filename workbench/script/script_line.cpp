#include "workbench/script/script_line.h"

#include <charconv>

#include "workbench/events/ansi.h"
#include "workbench/script/verbs.h"

namespace workbench {
namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

// Takes a quoted word whose opening quote has been read. Returns null, or what
// is wrong with it.
const char* readQuoted(std::string_view line, size_t* at, std::string* word) {
  while (*at < line.size()) {
    char c = line[(*at)++];
    if (c != '"') {
      *word += c;
    } else if (*at < line.size() && line[*at] == '"') {
      *word += '"';
      ++*at;
    } else {
      return *at < line.size() && !isBlank(line[*at]) ? "text follows a closing quote" : nullptr;
    }
  }
  return "a quote is left open";
}

const char* splitWords(std::string_view line, std::vector<std::string>* words) {
  size_t at = 0;
  while (true) {
    while (at < line.size() && isBlank(line[at])) {
      ++at;
    }
    if (at == line.size()) {
      return nullptr;
    }
    std::string word;
    if (line[at] == '"') {
      ++at;
      if (const char* fault = readQuoted(line, &at, &word)) {
        return fault;
      }
    } else {
      while (at < line.size() && !isBlank(line[at])) {
        word += line[at++];
      }
    }
    words->push_back(std::move(word));
  }
}

std::string checkVerb(const ScriptLine& line) {
  const VerbInfo* info = findVerb(line.verb);
  if (info == nullptr) {
    return "unknown verb: " + line.verb;
  }
  if (line.args.size() < info->min_args || line.args.size() > info->max_args) {
    return "usage: " + std::string(info->usage);
  }
  return {};
}

// Joins each "end-repeat" to the last "repeat" that is open (their places are kept).
std::string pairUp(ScriptLine* line, const std::vector<ScriptLine>& before,
                   std::vector<size_t>* open) {
  if (line->verb == "repeat") {
    open->push_back(before.size());
  } else if (line->verb == "end-repeat") {
    if (open->empty()) {
      return "there is nothing to repeat";
    }
    const std::string& count = before[open->back()].args[0];
    line->first_repeated = open->back() + 1;
    open->pop_back();
    auto [stop, fault] = std::from_chars(count.data(), count.data() + count.size(), line->rounds);
    if (fault != std::errc() || *stop != '\0' || line->rounds < 1) {
      return "nothing is done \"" + count + "\" times";
    }
  }
  return {};
}

// Adds the verb of one line, if it has one. Returns what is wrong with it.
std::string readLine(std::string_view text, int number, std::vector<ScriptLine>* lines,
                     std::vector<size_t>* open) {
  std::vector<std::string> words;
  size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos || text[first] == '#') {
    return {};
  }
  if (const char* fault = splitWords(text, &words)) {
    return fault;
  }
  ScriptLine line;
  line.number = number;
  line.verb = std::move(words.front());
  words.erase(words.begin());
  line.args = std::move(words);
  std::string fault = checkVerb(line);
  if (fault.empty()) {
    fault = pairUp(&line, *lines, open);
  }
  if (fault.empty()) {
    lines->push_back(std::move(line));
  }
  return fault;
}

}  // namespace

bool parseScript(std::string_view text, std::vector<ScriptLine>* lines, ScriptError* error) {
  if (text.substr(0, 3) == "\xEF\xBB\xBF") {
    text.remove_prefix(3);
  }
  std::string ansi;
  if (!ansiFromUtf8(text, &ansi)) {
    ansi = text;
  }
  std::string_view rest = ansi;
  std::vector<size_t> open;
  for (int number = 1; !rest.empty(); ++number) {
    size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (!line.empty() && line.back() == '\r') {
      line.remove_suffix(1);
    }
    std::string fault = readLine(line, number, lines, &open);
    if (!fault.empty()) {
      *error = {number, fault};
      return false;
    }
  }
  if (!open.empty()) {
    *error = {(*lines)[open.back()].number, "this repeat has no end"};
    return false;
  }
  return true;
}

}  // namespace workbench
