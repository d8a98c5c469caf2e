#include "addon/navigation/source_scanner.h"

#include <cstdint>
#include <cstring>

namespace kesto {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool endsLine(char c) {
  return c == '\n' || c == '\r' || c == '\0';
}

// The next CR, LF or zero byte, or end. Eight bytes at a time: a word without a
// byte below 14 holds none of the three.
const char* findLineEnd(const char* at, const char* end) {
  constexpr std::uint64_t kOnes = 0x0101010101010101U;
  while (end - at >= 8) {
    std::uint64_t word = 0;
    memcpy(&word, at, sizeof word);
    if (((word - kOnes * 14) & ~word & (kOnes * 0x80)) != 0) {
      for (const char* stop = at + 8; at != stop; ++at) {
        if (endsLine(*at)) {
          return at;
        }
      }
    } else {
      at += 8;
    }
  }
  while (at != end && !endsLine(*at)) {
    ++at;
  }
  return at;
}

// What follows the line that ends at line_end.
const char* nextLine(const char* line_end, const char* end) {
  if (line_end == end || *line_end == '\0') {
    return end;
  }
  const bool pair = *line_end == '\r' && end - line_end > 1 && line_end[1] == '\n';
  return line_end + (pair ? 2 : 1);
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

bool mayStartDefinition(const char* line, const char* end) {
  switch (*line) {
    case '#':
    case '/':
      return false;
    case ':':
      return end - line > 1 && line[1] == ':';
    default:
      return static_cast<signed char>(*line) >= 33;
  }
}

void scanLine(std::string_view line, int number, Tableau<Fnc>& functions) {
  if (memchr(line.data(), ';', line.size()) != nullptr) {
    return;
  }
  const std::size_t parenthesis = line.find('(');
  if (parenthesis == kNone || parenthesis == 0) {
    return;
  }
  const std::string_view head = line.substr(0, parenthesis);
  const std::size_t scope = head.find("::");
  std::string_view class_name;
  std::string_view name;
  if (scope != kNone && scope > 0) {
    const std::size_t start = wordStart(head, scope - 1);
    class_name = withoutMarks(head.substr(start, scope - start));
    name = withoutMarks(head.substr(scope + 2));
  } else {
    name = withoutMarks(head.substr(wordStart(head, head.size() - 1)));
  }
  if (!name.empty()) {
    functions.append(new Fnc(name, class_name, number));
  }
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
  const char* line = text.data();
  const char* const end = line + text.size();
  for (int number = 1; line != end; ++number) {
    const char* const line_end = findLineEnd(line, end);
    if (line_end != line && mayStartDefinition(line, line_end)) {
      scanLine({line, static_cast<std::size_t>(line_end - line)}, number, functions);
    }
    line = nextLine(line_end, end);
  }
}

void sortFunctions(Tableau<Fnc>& functions) {
  functions.sortWith<compareFunctions>();
}

void scanIncludes(std::string_view text, Tableau<String>& includes) {
  constexpr std::string_view kDirective = "#include";
  includes.clear();
  text = text.substr(0, text.find('\0'));
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
