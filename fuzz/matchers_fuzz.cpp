// The searches for a name. The input's first line is the name, the rest the text.
#include "addon/navigation/name_matchers.h"

#include <string>
#include <vector>

#include "addon/foundation/identifier.h"
#include "addon/navigation/line_reader.h"
#include "addon/navigation/name_finder.h"
#include "fuzz/fuzz.h"

namespace kesto {

namespace {

struct Hit {
  int line;
  std::string_view text;  // what a list of hits shows
};
using Hits = std::vector<Hit>;

Hits hitsOf(const NameMatcher& matcher, std::string_view text) {
  Hits hits;
  LineReader reader(text);
  std::string_view shown;
  while (matcher.findNext(reader, shown)) {
    FUZZ_CHECK(isWithin(shown, reader.line()));
    FUZZ_CHECK(hits.empty() || reader.number() > hits.back().line);
    hits.push_back({reader.number(), shown});
  }
  return hits;
}

// All lines of the text, one after the other.
std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  LineReader reader(text);
  std::size_t end = 0;
  while (reader.next() < text.size()) {
    reader.readLineAt(reader.next());
    FUZZ_CHECK(reader.start() == end);
    FUZZ_CHECK(reader.line().find_first_of(std::string_view("\r\n\0", 3)) ==
               std::string_view::npos);
    FUZZ_CHECK(reader.next() > reader.start() && reader.next() <= text.size());
    lines.push_back(reader.line());
    FUZZ_CHECK(reader.number() == static_cast<int>(lines.size()));
    end = reader.next();
  }
  return lines;
}

bool holdsAlone(std::string_view line, std::string_view name) {
  const std::size_t at = line.find(name);
  return at != std::string_view::npos && (at == 0 || !isIdentifierCharacter(line[at - 1])) &&
         (at + name.size() == line.size() || !isIdentifierCharacter(line[at + name.size()]));
}

// The search through the whole text stops where a search of each line for itself does.
void checkLineByLine(const NameMatcher& matcher, const Hits& hits,
                     const std::vector<std::string_view>& lines, std::string_view name) {
  std::size_t next = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Hits alone = hitsOf(matcher, lines[i]);
    FUZZ_CHECK(alone.size() <= 1);
    if (alone.empty()) {
      continue;
    }
    FUZZ_CHECK(next < hits.size() && hits[next].line == static_cast<int>(i) + 1);
    FUZZ_CHECK(hits[next].text == alone[0].text);
    FUZZ_CHECK(holdsAlone(lines[i], name));
    FUZZ_CHECK(hits[next].text.find(name) != std::string_view::npos);
    ++next;
  }
  FUZZ_CHECK(next == hits.size());
}

void checkFinder(std::string_view name, std::string_view text) {
  constexpr int kPlaces = 50;
  const NameFinder finder(name);
  std::size_t from = 0;
  for (int i = 0; i < kPlaces && from <= text.size(); ++i) {
    const std::size_t at = finder.find(text, from);
    FUZZ_CHECK(at == (name.empty() ? std::string_view::npos : text.find(name, from)));
    if (at == std::string_view::npos) {
      break;
    }
    from = at + 1;
  }
}

bool holdsLine(const Hits& hits, int line) {
  for (const Hit& hit : hits) {
    if (hit.line == line) {
      return true;
    }
  }
  return false;
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  constexpr std::size_t kComparedHits = 50;
  std::string_view text = inputText(data, size);
  const std::string_view name = takeLine(text);
  checkFinder(name, text);
  const std::vector<std::string_view> lines = linesOf(text);
  Hits found[kSearchCount];
  for (int search = 0; search < kSearchCount; ++search) {
    const NameMatcher matcher(static_cast<Search>(search), name);
    found[search] = hitsOf(matcher, text);
    checkLineByLine(matcher, found[search], lines, name);
  }
  const auto& [functions, methods, classes, crosses] = found;
  for (std::size_t i = 0; i < methods.size() && i < kComparedHits; ++i) {
    FUZZ_CHECK(holdsLine(functions, methods[i].line));
  }
  for (std::size_t i = 0; i < crosses.size() && i < kComparedHits; ++i) {
    FUZZ_CHECK(!holdsLine(functions, crosses[i].line) && !holdsLine(classes, crosses[i].line));
  }
  return 0;
}
