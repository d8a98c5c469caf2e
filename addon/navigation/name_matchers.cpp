#include "addon/navigation/name_matchers.h"

#include <algorithm>

#include "addon/foundation/identifier.h"
#include "addon/navigation/line_ends.h"

namespace kesto {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

// A line that holds the name, and where it does first.
struct NamedLine {
  std::string_view line;
  std::size_t start;
  std::size_t end;
};

bool isIndented(std::string_view line) {
  return static_cast<signed char>(line.front()) < 33;
}

bool standsAlone(const NamedLine& named) {
  const auto [line, start, end] = named;
  return (start == 0 || !isIdentifierCharacter(line[start - 1])) &&
         (end == line.size() || !isIdentifierCharacter(line[end]));
}

bool mayDefineFunction(const NamedLine& named) {
  const auto [line, start, end] = named;
  if (isIndented(line) || line.front() == '/' || line.front() == '#' || line.front() == ':') {
    return false;
  }
  const std::size_t parenthesis = line.find('(');
  return parenthesis != kNone && start < parenthesis && line.find(';') == kNone;
}

bool isMethod(const NamedLine& named, std::string_view& text) {
  const auto [line, start, end] = named;
  if (!mayDefineFunction(named)) {
    return false;
  }
  const std::size_t scope = line.find("::");
  if (scope == kNone || scope >= start) {
    return false;
  }
  std::size_t class_start = scope;
  while (class_start > 0 && isIdentifierCharacter(line[class_start - 1])) {
    --class_start;
  }
  text = line.substr(class_start, end - class_start);
  return true;
}

bool isClass(std::string_view line) {
  constexpr std::string_view kKeyword = "class";
  return line.size() > kKeyword.size() + 1 && line.starts_with(kKeyword) &&
         !isIdentifierCharacter(line[kKeyword.size()]) && line.find(';') == kNone;
}

bool matches(Search search, const NamedLine& named, std::string_view& text) {
  if (!standsAlone(named)) {
    return false;
  }
  text = named.line;
  switch (search) {
    case Search::kFunction:
      return mayDefineFunction(named);
    case Search::kMethod:
      return isMethod(named, text);
    case Search::kClass:
      return isClass(named.line);
    case Search::kCross:
      return isIndented(named.line);
  }
  return false;
}

}  // namespace

NameMatcher::NameMatcher(Search search, std::string_view name)
    : search_(search), possible_(std::none_of(name.begin(), name.end(), endsLine)), finder_(name) {}

bool NameMatcher::findNext(LineReader& reader, std::string_view& text) const {
  while (possible_) {
    const std::size_t at = finder_.find(reader.text(), reader.next());
    if (at == kNone) {
      return false;
    }
    reader.readLineAt(at);
    const std::size_t start = at - reader.start();
    if (matches(search_, {reader.line(), start, start + finder_.name().size()}, text)) {
      return true;
    }
  }
  return false;
}

}  // namespace kesto
