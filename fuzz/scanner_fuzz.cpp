// The source scanner and the menus planned from what it finds.
#include "addon/navigation/source_scanner.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "addon/navigation/line_ends.h"
#include "addon/navigation/line_reader.h"
#include "addon/navigation/menu_plan.h"
#include "fuzz/fuzz.h"

namespace kesto {

namespace {

struct Found {
  std::string class_name;
  std::string name;
  int line;
  bool operator==(const Found&) const = default;
  auto operator<=>(const Found&) const = default;
};
using Functions = std::vector<Found>;
using Includes = std::vector<std::string>;

Functions copyOf(const Tableau<Fnc>& table) {
  Functions all;
  for (int i = 0; i < table.count(); ++i) {
    const Fnc& entry = *table.at(i);
    all.push_back({entry.className(), entry.name(), entry.line()});
  }
  return all;
}

Functions functionsOf(std::string_view text) {
  Tableau<Fnc> table;
  scanFunctions(text, table);
  return copyOf(table);
}

Includes includesOf(std::string_view text) {
  Tableau<String> table;
  scanIncludes(text, table);
  Includes all;
  for (int i = 0; i < table.count(); ++i) {
    all.emplace_back(table.at(i)->view());
  }
  return all;
}

// The vector search finds the lines that the word search finds.
void checkLineSearches(std::string_view text) {
  FlushLeftLines<LineSearch> fast(text);
  FlushLeftLines<WordSearch> plain(text);
  std::string_view line;
  std::string_view same;
  while (fast.next(line)) {
    FUZZ_CHECK(plain.next(same));
    FUZZ_CHECK(line.data() == same.data() && line.size() == same.size());
    FUZZ_CHECK(isWithin(line, text) && !line.empty());
    FUZZ_CHECK(fast.number() == plain.number());
  }
  FUZZ_CHECK(!plain.next(same));
}

// Each function stands on its line, and no line holds two.
void checkPlaces(const Functions& functions, std::string_view text) {
  LineReader reader(text);
  int number = 0;
  int last = 0;
  for (const Found& found : functions) {
    FUZZ_CHECK(found.line > last);
    last = found.line;
    for (; number < found.line; ++number) {
      FUZZ_CHECK(reader.next() < text.size());
      reader.readLineAt(reader.next());
    }
    FUZZ_CHECK(reader.number() == found.line);
    FUZZ_CHECK(!found.name.empty());
    FUZZ_CHECK(reader.line().find(found.name) != std::string_view::npos);
    FUZZ_CHECK(reader.line().find(found.class_name) != std::string_view::npos);
  }
}

// The text's two halves, cut after a line feed, hold what the whole holds.
void checkHalves(const Functions& functions, const Includes& includes, std::string_view text) {
  const std::size_t feed = text.find('\n', text.size() / 2);
  if (feed == std::string_view::npos || feed + 1 == text.size()) {
    return;
  }
  const std::string_view head = text.substr(0, feed + 1);
  const std::string_view tail = text.substr(feed + 1);
  LineReader reader(text);
  reader.readLineAt(feed + 1);
  Functions halves = functionsOf(head);
  for (Found& found : functionsOf(tail)) {
    found.line += reader.number() - 1;
    halves.push_back(std::move(found));
  }
  FUZZ_CHECK(halves == functions);
  Includes names = includesOf(head);
  for (std::string& name : includesOf(tail)) {
    names.push_back(std::move(name));
  }
  FUZZ_CHECK(names == includes);
}

// A line end is a line end, whichever it is.
void checkLineEnds(const Functions& functions, const Includes& includes, std::string_view text) {
  for (const char* end : {"\r", "\n", "\r\n"}) {
    std::string changed;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] != '\r' && text[i] != '\n') {
        changed += text[i];
        continue;
      }
      changed += end;
      i += text.substr(i, 2) == "\r\n" ? 1 : 0;
    }
    FUZZ_CHECK(functionsOf(changed) == functions);
    FUZZ_CHECK(includesOf(changed) == includes);
  }
}

// Walks a menu in its order and tells how many entries it shows: a text of this size gives
// none too many.
int checkMenu(const MenuPlan& menu, int column_size, const Tableau<Fnc>& functions,
              const char* class_name, int next) {
  for (std::size_t i = 0; i < menu.size(); ++i) {
    const MenuPlanItem& item = menu[i];
    FUZZ_CHECK(item.column_break ==
               (column_size > 0 && i > 0 && i % static_cast<std::size_t>(column_size) == 0));
    if (item.id == 0) {
      FUZZ_CHECK(*class_name == '\0' && !item.text.empty() && !item.submenu.empty());
      next = checkMenu(item.submenu, column_size, functions, item.text.c_str(), next);
      continue;
    }
    FUZZ_CHECK(item.id == kFirstFunctionId + next && next < functions.count());
    FUZZ_CHECK(item.text == functions.at(next)->name() && item.submenu.empty());
    FUZZ_CHECK(strcmp(functions.at(next)->className(), class_name) == 0);
    FUZZ_CHECK(item.enabled == (item.id <= kLastFunctionId));
    ++next;
  }
  return next;
}

void checkSortedMenu(const Functions& functions, std::string_view text) {
  Tableau<Fnc> table;
  scanFunctions(text, table);
  sortFunctions(table);
  Functions sorted = copyOf(table);
  Functions expected = functions;
  std::sort(expected.begin(), expected.end());
  FUZZ_CHECK(std::equal(sorted.begin(), sorted.end(), expected.begin(), expected.end(),
                        [](const Found& a, const Found& b) {
                          return a.class_name == b.class_name && a.name == b.name;
                        }));
  // Entries of the same names may stand in any order, but each is there.
  std::sort(sorted.begin(), sorted.end());
  FUZZ_CHECK(sorted == expected);
  const int column_size = static_cast<int>(text.size() % 40);
  const MenuPlan menu = planFunctionsMenu(table, column_size);
  FUZZ_CHECK(checkMenu(menu, column_size, table, "", 0) == table.count());
}

void checkIncludes(const Includes& includes, std::string_view text) {
  std::size_t from = 0;
  for (const std::string& name : includes) {
    FUZZ_CHECK(!name.empty() && name.size() <= kIncludeNameLimit);
    from = text.find(name, from);  // in the text's order
    FUZZ_CHECK(from != std::string_view::npos);
    from += name.size();
  }
  Tableau<String> table;
  scanIncludes(text, table);
  const MenuPlan menu = planIncludesMenu(table);
  FUZZ_CHECK(menu.size() == includes.size());
  for (std::size_t i = 0; i < menu.size(); ++i) {
    FUZZ_CHECK(menu[i].id == 700 + static_cast<int>(i) && menu[i].enabled == (i < 100));
  }
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  const std::string_view whole = inputText(data, size);
  checkLineSearches(whole);
  const Functions functions = functionsOf(whole);
  const Includes includes = includesOf(whole);
  // A text ends at its first zero byte.
  const std::string_view text = upToZero(whole);
  checkPlaces(functions, text);
  checkHalves(functions, includes, text);
  checkLineEnds(functions, includes, text);
  checkSortedMenu(functions, text);
  checkIncludes(includes, text);
  return 0;
}
