#include "addon/navigation/source_scanner.h"

#include <algorithm>
#include <cstring>

#include "addon/navigation/line_ends.h"

namespace kesto {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

std::string_view upToZero(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

// What follows the line that ends at line_end. A zero byte ends the text here.
const char* nextLine(const char* line_end, const char* end) {
  return line_end != end && *line_end == '\0' ? end : pastLineEnd(line_end, end);
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

bool mayStartDefinition(std::string_view line) {
  // The shortest definition is a letter and a parenthesis.
  if (line.size() < 2 || static_cast<signed char>(line.front()) < 33) {
    return false;
  }
  switch (line.front()) {
    case '#':
    case '/':
      return false;
    case ':':
      return line[1] == ':';
    default:
      return true;
  }
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

// head is not empty.
DefinitionName splitHead(std::string_view head) {
  const std::size_t scope = head.find("::");
  if (scope == kNone || scope == 0) {
    return {{}, withoutMarks(head.substr(wordStart(head, head.size() - 1)))};
  }
  const std::size_t start = wordStart(head, scope - 1);
  return {withoutMarks(head.substr(start, scope - start)), withoutMarks(head.substr(scope + 2))};
}

int compareFunctions(const Fnc& left, const Fnc& right) {
  const int classes = strcmp(left.className(), right.className());
  return classes != 0 ? classes : strcmp(left.name(), right.name());
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
  const char* at = text.data();
  const char* const end = at + text.size();
  for (int number = 1; at != end; ++number) {
    const char* const line_end = findLineEnd(at, end);
    const std::string_view line(at, static_cast<std::size_t>(line_end - at));
    at = nextLine(line_end, end);
    if (!mayStartDefinition(line)) {
      continue;
    }
    const std::string_view head = definitionHead(line);
    if (head.empty()) {
      continue;
    }
    const DefinitionName found = splitHead(head);
    if (!found.name.empty()) {
      functions.append(new Fnc(found.name, found.class_name, number));
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
  const char* const end = text.data() + text.size();
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
    const auto stop =
        static_cast<std::size_t>(findLineEnd(text.data() + directive, end) - text.data());
    const std::string_view name = includeName(text.substr(start, stop - start));
    if (!name.empty()) {
      includes.append(new String(name.substr(0, kIncludeNameLimit)));
    }
    from = stop;
  }
}

}  // namespace kesto
