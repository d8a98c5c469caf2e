#include "workbench/editor/text_layout.h"

#include <string>
#include <vector>

#include "doctest.h"
#include "workbench/editor/highlight.h"

using namespace workbench;

TEST_CASE("tabs reach to the next stop, columns and cells go both ways") {
  const std::string line = "\ta\tbc";
  const int cells[] = {0, 4, 5, 8, 9, 10};
  for (int column = 0; column <= 5; ++column) {
    CHECK(cellOfColumn(line, column, 4) == cells[column]);
    CHECK(columnOfCell(line, cells[column], 4) == column);
  }
  CHECK(cellOfColumn(line, 7, 4) == 12);
  CHECK(columnOfCell(line, 1, 4) == 0);
  CHECK(columnOfCell(line, 3, 4) == 1);
  CHECK(columnOfCell(line, 99, 4) == 5);
  CHECK(cellsOfLine("", 8) == 0);
}

TEST_CASE("words") {
  const std::string line = "  foo_1 += bar(\"x\");";
  std::vector<int> stops;
  for (int at = 0; at < static_cast<int>(line.size()); at = nextWord(line, at)) {
    stops.push_back(at);
  }
  CHECK(stops == std::vector<int>{0, 2, 8, 11, 14, 16, 17});
  CHECK(previousWord(line, 20) == 17);
  CHECK(previousWord(line, 11) == 8);
  CHECK(previousWord(line, 2) == 0);
  int from = 0;
  int to = 0;
  wordAround(line, 4, &from, &to);
  CHECK(from == 2);
  CHECK(to == 7);
  wordAround("", 3, &from, &to);
  CHECK(from == 0);
  CHECK(to == 0);
  CHECK(indentOf("\t  x") == "\t  ");
  CHECK(indentOf("   ") == "   ");
}

TEST_CASE("a line of C++ is split into kinds that cover it") {
  const struct {
    std::string line;
    bool in_comment;
    std::string kinds;  // p plain, c comment, t text, n number, k keyword, d directive
    bool still_in_comment;
  } cases[] = {
      {"int x=1;", false, "kkkpppnp", false},
      {"a // int", false, "ppcccccc", false},
      {"a /* b", false, "ppcccc", true},
      {"b */ if", true, "ccccpkk", false},
      {"/*/ a */x", false, "ccccccccp", false},
      {"b", true, "c", true},
      {"\"a\\\"//\" 'x'", false, "tttttttpttt", false},
      {"\"open", false, "ttttt", false},
      {"\"end\\", false, "ttttt", false},
      {"#if 1 //", false, "dkkdddcc", false},
      {"  # define A", false, "dddddddddddd", false},
      {"x_int int_", false, "pppppppppp", false},
      {"", true, "", true},
  };
  for (const auto& each : cases) {
    CAPTURE(each.line);
    std::vector<TextRun> runs;
    CHECK(highlightLine(each.line, each.in_comment, &runs) == each.still_in_comment);
    std::string kinds;
    for (const TextRun& run : runs) {
      CHECK(run.from == static_cast<int>(kinds.size()));
      kinds += std::string(static_cast<std::size_t>(run.to - run.from),
                           "pctnkd"[static_cast<int>(run.kind)]);
    }
    CHECK(kinds == each.kinds);
  }
}

TEST_CASE("lines keep their colours up to date through any edit") {
  struct Follower final : DocumentListener {
    Highlighter highlighter;
    void documentChanged(const DocumentChange& change) override {
      highlighter.documentChanged(change);
    }
    void documentStateChanged() override {}
  } follower;
  Document document;
  document.addListener(&follower);
  document.load("a\nb\nc\n");
  CHECK(follower.highlighter.runs(document, 2)[0].kind == TextKind::kPlain);
  document.insert({0, 0}, "/*");
  // Only lines that were coloured before can turn.
  CHECK(follower.highlighter.makeSure(document, 3) == 3);
  CHECK(follower.highlighter.runs(document, 2)[0].kind == TextKind::kComment);
  document.insert({1, 0}, "*/");
  CHECK(follower.highlighter.runs(document, 1)[0].kind == TextKind::kComment);
  CHECK(follower.highlighter.runs(document, 2)[0].kind == TextKind::kPlain);
  unsigned int seed = 1;
  const auto below = [&seed](int bound) {
    seed = seed * 1103515245u + 12345u;
    return static_cast<int>((seed >> 8) % static_cast<unsigned int>(bound));
  };
  const std::string_view pieces[] = {"/*", "*/", "x\n", "\n*/\n\n", "a\n/*\nb", "// \n"};
  for (int i = 0; i < 3000; ++i) {
    const Place at = {below(document.lineCount()), below(4)};
    if (below(3) == 0) {
      document.erase(at, {at.line + below(4), below(4)});
    } else {
      document.insert(at, pieces[below(6)]);
    }
    const int line = below(document.lineCount());
    const bool inside = Highlighter().beginsInComment(document, line);
    REQUIRE(follower.highlighter.beginsInComment(document, line) == inside);
  }
}
