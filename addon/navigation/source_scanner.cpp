#include "addon/navigation/source_scanner.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace kesto {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

std::string_view upToZero(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

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

// Lines that end in [from, to). The byte at to is the text's as well.
int countLineEnds(const char* from, const char* to) {
  // Sums of a byte each let the compiler count many bytes at once.
  constexpr std::ptrdiff_t kByteSum = 240;
  int count = 0;
  while (from != to) {
    const char* const stop = to - from > kByteSum ? from + kByteSum : to;
    std::uint8_t sum = 0;
    for (; from != stop; ++from) {
      const bool lone_cr = (from[0] == '\r') & (from[1] != '\n');
      sum = static_cast<std::uint8_t>(sum + ((from[0] == '\n') | lone_cr));
    }
    count += sum;
  }
  return count;
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

// line holds one character at least, and that is visible and below 128.
bool mayStartDefinition(std::string_view line) {
  switch (line.front()) {
    case '#':
    case '/':
      return false;
    case ':':
      return line.starts_with("::");
    default:
      return true;
  }
}

// What stands before the first "(" of a line that may hold a definition, else empty.
std::string_view definitionHead(std::string_view line) {
  if (!mayStartDefinition(line) || line.find(';') != kNone) {
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

// Goes through the lines that start with a visible character in column one.
class FunctionScan {
 public:
  FunctionScan(std::string_view text, Tableau<Fnc>& functions)
      : counted_(text.data()), end_(text.data() + text.size()), functions_(functions) {}

  void run() {
    const char* at = counted_;
    if (at == end_) {
      return;
    }
    if (static_cast<signed char>(*at) > 32) {
      scanLine(at);
    }
    for (++at; at != end_; at += marked_) {
      markLineStarts(at);
      scanMarked(at);
    }
  }

 private:
  // A piece of the text is marked in one go and then looked through word by word:
  // most bytes, and most lines, cost no decision of their own.
  static constexpr std::ptrdiff_t kPiece = 4096;

  // Marks the bytes from at on that are visible and follow a line end.
  void markLineStarts(const char* at) {
    marked_ = std::min(kPiece, end_ - at);
    for (std::ptrdiff_t i = 0; i < marked_; ++i) {
      const char before = at[i - 1];
      marks_[i] = static_cast<std::uint8_t>(((before == '\n') | (before == '\r')) &
                                            (static_cast<signed char>(at[i]) > 32));
    }
    std::fill(marks_ + marked_, marks_ + (marked_ + 7) / 8 * 8, std::uint8_t{0});
  }

  void scanMarked(const char* at) {
    for (std::ptrdiff_t i = 0; i < marked_; i += 8) {
      std::uint64_t word = 0;
      memcpy(&word, marks_ + i, sizeof word);
      for (; word != 0; word &= word - 1) {
        scanLine(at + i + std::countr_zero(word) / 8);
      }
    }
  }

  void scanLine(const char* line) {
    const char* const line_end = findLineEnd(line, end_);
    const std::string_view head = definitionHead({line, static_cast<std::size_t>(line_end - line)});
    if (head.empty()) {
      return;
    }
    const DefinitionName found = splitHead(head);
    if (!found.name.empty()) {
      line_number_ += countLineEnds(counted_, line);
      counted_ = line;
      functions_.append(new Fnc(found.name, found.class_name, line_number_));
    }
  }

  const char* counted_;  // a line's start, line_number_ its number
  const char* const end_;
  Tableau<Fnc>& functions_;
  int line_number_ = 1;
  std::ptrdiff_t marked_ = 0;
  std::uint8_t marks_[kPiece];
};

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
  FunctionScan(upToZero(text), functions).run();
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
