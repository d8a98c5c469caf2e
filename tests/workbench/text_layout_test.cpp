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

TEST_CASE("a comment opened above colours the lines below until it is closed") {
  Document document;
  document.load("a\nb\nc\n");
  Highlighter highlighter;
  CHECK(highlighter.runs(document, 2)[0].kind == TextKind::kPlain);
  document.insert({0, 0}, "/*");
  highlighter.invalidate(0);
  CHECK(highlighter.runs(document, 2)[0].kind == TextKind::kComment);
  document.insert({1, 0}, "*/");
  highlighter.invalidate(1);
  CHECK(highlighter.runs(document, 1)[0].kind == TextKind::kComment);
  CHECK(highlighter.runs(document, 2)[0].kind == TextKind::kPlain);
}
