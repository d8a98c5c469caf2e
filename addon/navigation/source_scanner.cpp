#include "addon/navigation/source_scanner.h"

#include <algorithm>
#include <cstring>

#include "addon/navigation/line_ends.h"

namespace kesto {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Slots by which the list grows: a large source has thousands of functions.
constexpr int kFunctionsStep = 1000;

std::string_view upToZero(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

bool isVisible(char c) {
  return static_cast<unsigned char>(c) > 32;
}

// Blanks and pointer or reference marks before a name.
std::string_view withoutMarks(std::string_view name) {
  std::size_t start = 0;
  while (start < name.size() &&
         (!isVisible(name[start]) || name[start] == '*' || name[start] == '&')) {
    ++start;
  }
  return name.substr(start);
}

// Where the word that ends with the character at last starts; that character
// belongs to it even when it is a blank.
std::size_t wordStart(std::string_view head, std::size_t last) {
  while (last > 0 && isVisible(head[last - 1])) {
    --last;
  }
  return last;
}

// The shortest definition is a letter and a parenthesis.
bool mayBeDefinition(std::string_view line) {
  const char first = line.front();
  return line.size() > 1 && first != ':' && first != '/' && first != '#';
}

// What stands before the first "(" of a line that may hold a definition, else empty.
std::string_view definitionHead(std::string_view line) {
  if (line.find(';') != kNone) {
    return {};
  }
  const std::size_t parenthesis = line.find('(');
  return parenthesis == kNone ? std::string_view() : line.substr(0, parenthesis);
}

struct DefinitionName {
  std::string_view class_name;
  std::string_view name;
};

// The head is not empty and does not start with ":".
DefinitionName splitHead(std::string_view head) {
  const std::size_t scope = head.find("::");
  if (scope == kNone) {
    return {{}, withoutMarks(head.substr(wordStart(head, head.size() - 1)))};
  }
  const std::size_t start = wordStart(head, scope - 1);
  return {withoutMarks(head.substr(start, scope - start)), withoutMarks(head.substr(scope + 2))};
}

int compareFunctions(const Fnc& left, const Fnc& right) {
  const int classes = strcmp(left.className(), right.className());
  const int names = classes != 0 ? classes : strcmp(left.name(), right.name());
  return names != 0 ? names : left.line() - right.line();
}

// The name between the first opening mark and the closing mark after it.
std::string_view between(std::string_view line, std::size_t opening, char closing) {
  const std::size_t start = opening + 1;
  const std::size_t end = line.find(closing, start);
  return end == kNone ? std::string_view() : line.substr(start, end - start);
}

std::string_view includeName(std::string_view line) {
  const std::size_t angle = line.find('<');
  if (angle != kNone) {
    return between(line, angle, '>');
  }
  const std::size_t quote = line.find('"');
  if (quote != kNone && quote > 0) {
    return between(line, quote, '"');
  }
  return {};
}

}  // namespace

void scanFunctions(std::string_view text, Tableau<Fnc>& functions) {
  functions.clear();
  functions.setStep(kFunctionsStep);
  FlushLeftLines lines(text);
  std::string_view line;
  while (lines.next(line)) {
    if (!mayBeDefinition(line)) {
      continue;
    }
    const std::string_view head = definitionHead(line);
    if (head.empty()) {
      continue;
    }
    const DefinitionName found = splitHead(head);
    if (!found.name.empty()) {
      functions.append(new Fnc(found.name, found.class_name, lines.number()));
    }
  }
}

void sortFunctions(Tableau<Fnc>& functions) {
  functions.sortWith<compareFunctions>();
}

void scanIncludes(std::string_view text, Tableau<String>& includes) {
  constexpr std::string_view kDirective = "#include";
  includes.clear();
  text = upToZero(text);
  std::size_t from = 0;
  for (;;) {
    const std::size_t directive = text.find(kDirective, from);
    if (directive == kNone) {
      return;
    }
    std::size_t start = directive;
    while (start > from && !endsLine(text[start - 1])) {
      --start;
    }
    const std::size_t stop = std::min(text.find_first_of("\r\n", directive), text.size());
    const std::string_view name = includeName(text.substr(start, stop - start));
    if (!name.empty()) {
      includes.append(new String(name.substr(0, kIncludeNameLimit)));
    }
    from = stop;
  }
}

}  // namespace kesto
