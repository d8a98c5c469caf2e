#include "workbench/editor/document.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "doctest.h"

using namespace std::string_literals;
using workbench::Document;
using workbench::DocumentChange;
using workbench::DocumentListener;
using workbench::Place;
using workbench::TextSearch;

namespace {

Document documentOf(std::string_view text) {
  Document document;
  document.load(text);
  return document;
}

// Types byte by byte, as keys do; returns the caret.
Place typeKeys(Document* document, Place at, std::string_view keys) {
  for (const char& key : keys) {
    at = document->insert(at, {&key, 1}, Document::Edit::kTyping);
  }
  return at;
}

class Recorder final : public DocumentListener {
 public:
  void documentChanged(const DocumentChange& change) override { changes.push_back(change); }
  void documentStateChanged() override { ++state_changes; }
  std::vector<DocumentChange> changes;
  int state_changes = 0;
};

}  // namespace

TEST_CASE("a text is given back byte for byte") {
  const struct {
    std::string text;
    int lines;
    std::string_view new_end;
  } cases[] = {
      {"", 1, "\r\n"},          {"one", 1, "\r\n"},      {"one\r\n", 2, "\r\n"},
      {"a\nb\nc\r\n", 4, "\n"}, {"a\rb\rc\n", 4, "\r"},  {"a\nb\r\n", 3, "\r\n"},
      {"a\rb\nc", 3, "\n"},     {"\r\r\n\n\r", 5, "\r"}, {"nul\0\xE9\xFF\x1A\n"s, 2, "\n"},
  };
  for (const auto& each : cases) {
    CAPTURE(each.text);
    Document document = documentOf(each.text);
    CHECK(document.bytes() == each.text);
    CHECK(document.lineCount() == each.lines);
    CHECK_FALSE(document.modified());
    document.insert({0, 0}, "\n");
    CHECK(document.bytes() == std::string(each.new_end) + each.text);
  }
}

TEST_CASE("an edit leaves the ends of other lines and gives its own the prevailing end") {
  Document document = documentOf("a\nb\nc\rd\r\ne");
  CHECK(document.insert({2, 1}, "1\r\n2\r3") == Place{4, 1});
  CHECK(document.bytes() == "a\nb\nc1\n2\n3\rd\r\ne");
  document.erase({5, 0}, {1, 1});
  CHECK(document.bytes() == "a\nbd\r\ne");
  document.insert({99, 0}, "!");
  document.insert({0, 99}, "?");
  document.insert({-1, 5}, ">");
  CHECK(document.bytes() == ">a?\nbd\r\ne!");
}

TEST_CASE("undo and redo go back and forth over every kind of end") {
  const std::string before = "one\rtwo\nthree\r\nfour\n";
  const struct {
    Place from;
    Place to;
    std::string_view text;
    std::string_view after;
  } cases[] = {
      {{0, 3}, {1, 0}, "", "onetwo\nthree\r\nfour\n"},
      {{0, 0}, {4, 0}, "", ""},
      {{1, 1}, {2, 2}, "X\nY", "one\rtX\nYree\r\nfour\n"},
      {{4, 0}, {4, 0}, "\r\n", "one\rtwo\nthree\r\nfour\n\n"},
      // An empty line between CR and LF must not melt into CR LF when undone.
      {{0, 3}, {1, 3}, "", "one\nthree\r\nfour\n"},
  };
  for (const auto& each : cases) {
    CAPTURE(each.after);
    Document document = documentOf(before);
    document.beginTransaction();
    document.erase(each.from, each.to);
    document.insert(each.from, each.text);
    document.endTransaction();
    CHECK(document.bytes() == each.after);
    Place caret;
    CHECK(document.undo(&caret));
    CHECK(document.bytes() == before);
    CHECK_FALSE(document.undo(&caret));
    CHECK(document.redo(&caret));
    CHECK(document.bytes() == each.after);
    CHECK_FALSE(document.redo(&caret));
  }
}

TEST_CASE("a run of typing is one step, and a moved caret or another kind of edit ends it") {
  Document document = documentOf("");
  Place at = typeKeys(&document, {0, 0}, "abc");
  at = document.insert(at, "\n");
  typeKeys(&document, at, "de");
  document.breakRun();
  typeKeys(&document, {1, 2}, "fg");
  typeKeys(&document, {0, 0}, "x");
  CHECK(document.bytes() == "xabc\r\ndefg");
  document.erase({0, 3}, {0, 4}, Document::Edit::kErasing);
  document.erase({0, 2}, {0, 3}, Document::Edit::kErasing);
  CHECK(document.bytes() == "xa\r\ndefg");

  // Forwards, each at the same place; the caret comes back behind what was erased.
  document.breakRun();
  document.erase({1, 0}, {1, 1}, Document::Edit::kErasing);
  document.erase({1, 0}, {1, 1}, Document::Edit::kErasing);
  CHECK(document.bytes() == "xa\r\nfg");
  Place caret;
  CHECK(document.undo(&caret));
  CHECK(document.bytes() == "xa\r\ndefg");
  CHECK(caret == Place{1, 2});

  std::vector<std::string> seen;
  while (document.undo(&caret)) {
    seen.push_back(document.bytes());
  }
  CHECK(seen ==
        std::vector<std::string>{"xabc\r\ndefg", "abc\r\ndefg", "abc\r\nde", "abc\r\n", "abc", ""});
}

TEST_CASE("a text undone or redone to the saved point is clean again") {
  Document document = documentOf("a");
  Recorder recorder;
  document.addListener(&recorder);
  typeKeys(&document, {0, 1}, "bc");
  CHECK(document.modified());
  document.markSaved();
  CHECK_FALSE(document.modified());
  // Typing goes on at once, yet the saved text stays a step of its own.
  typeKeys(&document, {0, 3}, "d");
  CHECK(document.modified());
  Place caret;
  document.undo(&caret);
  CHECK(document.bytes() == "abc");
  CHECK_FALSE(document.modified());
  document.undo(&caret);
  CHECK(document.modified());
  document.redo(&caret);
  CHECK_FALSE(document.modified());
  CHECK(recorder.state_changes == 6);

  // A new branch of history forgets the saved point for good.
  document.undo(&caret);
  document.insert({0, 0}, "z");
  document.undo(&caret);
  CHECK(document.bytes() == "a");
  CHECK(document.modified());
  document.removeListener(&recorder);
}

TEST_CASE("nested transactions are one step, with nothing to undo inside") {
  Document document = documentOf("1\n2\n3\n");
  Place caret;
  document.insert({0, 0}, "first ");
  document.beginTransaction();
  document.insert({1, 0}, "a");
  document.beginTransaction();
  document.erase({2, 0}, {2, 1});
  document.endTransaction();
  CHECK_FALSE(document.undo(&caret));
  document.insert({0, 0}, "b");
  document.endTransaction();
  document.endTransaction();  // one too many does no harm
  CHECK(document.bytes() == "bfirst 1\na2\n\n");
  CHECK(document.undo(&caret));
  CHECK(document.bytes() == "first 1\n2\n3\n");
  CHECK(document.undo(&caret));
  CHECK(document.bytes() == "1\n2\n3\n");
}

TEST_CASE("saving inside a transaction leaves what follows unsaved") {
  Document document = documentOf("");
  document.beginTransaction();
  document.insert({0, 0}, "a");
  document.markSaved();
  document.insert({0, 1}, "b");
  document.endTransaction();
  CHECK(document.modified());
  Place caret;
  document.undo(&caret);
  CHECK(document.bytes() == "a");
  CHECK_FALSE(document.modified());
}

TEST_CASE("listeners learn where the text changed") {
  Document document = documentOf("ab\ncd");
  Recorder recorder;
  document.addListener(&recorder);
  document.insert({0, 1}, "x\ny");
  document.erase({0, 2}, {2, 1});
  document.removeListener(&recorder);
  document.insert({0, 0}, "unseen");
  REQUIRE(recorder.changes.size() == 2);
  CHECK(recorder.changes[0].from == Place{0, 1});
  CHECK(recorder.changes[0].new_end == Place{1, 1});
  CHECK(recorder.changes[1].old_end == Place{2, 1});
  CHECK(recorder.changes[1].new_end == Place{0, 2});
}

TEST_CASE("find") {
  const Document document = documentOf("Alpha beta\nbeta ALPHA beta\n");
  const struct {
    std::string what;
    bool match_case;
    bool backward;
    Place start;
    bool found;
    Place place;
    bool whole_word = false;
  } cases[] = {
      {"alpha", false, false, {0, 0}, true, {0, 0}},
      {"alpha", false, false, {0, 1}, true, {1, 5}},
      {"alpha", true, false, {0, 0}, false, {}},
      {"beta", true, false, {0, 6}, true, {0, 6}},
      {"beta", true, false, {1, 12}, false, {}},
      {"beta", true, true, {2, 0}, true, {1, 11}},
      {"beta", true, true, {1, 11}, true, {1, 0}},
      {"beta", true, true, {0, 9}, false, {}},
      {"beta\nbeta", true, false, {0, 0}, false, {}},
      {"", true, false, {0, 0}, false, {}},
      {"bet", true, false, {0, 0}, true, {0, 6}},
      {"bet", true, false, {0, 0}, false, {}, true},
      {"beta", true, false, {0, 0}, true, {0, 6}, true},
      {"a b", true, false, {0, 0}, true, {0, 4}},
      {"a b", true, false, {0, 0}, false, {}, true},
      {"ta ", true, true, {2, 0}, true, {1, 2}},
      {"ta ", true, true, {2, 0}, false, {}, true},
      {" beta", true, true, {2, 0}, true, {1, 10}, true},
  };
  for (const auto& each : cases) {
    CAPTURE(each.what);
    CAPTURE(each.start.column);
    CAPTURE(each.whole_word);
    Place place;
    CHECK(document.find({each.what, each.match_case, each.whole_word}, each.backward, each.start,
                        &place) == each.found);
    CHECK((!each.found || place == each.place));
  }
}

TEST_CASE("replacing all between two places is one step of undo") {
  const std::string before = "aa ab\nA aaa\nba a\n";
  const struct {
    TextSearch search;
    std::string with;
    Place from, to;
    std::string after;
    int count;
    Place end;  // where `to` stands then
  } cases[] = {
      {{"a", true, false}, "xy", {0, 0}, {3, 0}, "xyxy xyb\nA xyxyxy\nbxy xy\n", 8, {3, 0}},
      {{"a", false, true}, "", {0, 0}, {3, 0}, "aa ab\n aaa\nba \n", 2, {3, 0}},
      // A hit that reaches out of the part stays, and so does what was put in.
      {{"aa", true, false}, "aaa", {0, 1}, {1, 4}, "aa ab\nA aaaa\nba a\n", 1, {1, 5}},
      {{"a", true, false}, "", {0, 0}, {0, 4}, " b\nA aaa\nba a\n", 3, {0, 1}},
      {{"none", true, false}, "x", {0, 0}, {3, 0}, before, 0, {3, 0}},
      {{"a", true, false}, "x\ny", {0, 0}, {3, 0}, before, 0, {3, 0}},
  };
  for (const auto& each : cases) {
    CAPTURE(each.after);
    Document document = documentOf(before);
    Place to = each.to;
    CHECK(document.replaceAll(each.search, each.with, each.from, &to) == each.count);
    CHECK(document.bytes() == each.after);
    CHECK(to == each.end);
    Place caret;
    CHECK(document.undo(&caret) == (each.count > 0));
    CHECK(document.bytes() == before);
    CHECK_FALSE(document.canUndo());
  }
}

TEST_CASE("a long text and a long line take edits at both ends") {
  std::string text;
  for (int i = 0; i < 100000; ++i) {
    text += "int some_name_of_usual_length;\r\n";
  }
  text += std::string(1 << 20, 'x');
  Document document = documentOf(text);
  CHECK(document.lineCount() == 100001);
  for (int i = 0; i < 200; ++i) {
    document.insert({i, 0}, "\n");
    document.insert({document.lineCount() - 1, i}, "y", Document::Edit::kTyping);
  }
  CHECK(document.lineCount() == 100201);
  Place caret;
  while (document.undo(&caret)) {
  }
  CHECK(document.bytes() == text);
}

TEST_CASE("random edits agree with a plain string, there and back") {
  unsigned int seed = 1;
  const auto pick = [&seed](std::size_t below) {
    seed = seed * 1103515245u + 12345u;
    return static_cast<int>((seed >> 8) % below);
  };
  std::string model = "int a;\n\nint b;\n";
  Document document = documentOf(model);
  std::vector<std::string> steps = {model};
  const auto offsetOf = [&model](Place place) {
    std::size_t at = 0;
    for (int i = 0; i < place.line; ++i) {
      at = model.find('\n', at) + 1;
    }
    return at + static_cast<std::size_t>(place.column);
  };
  const auto anyPlace = [&] {
    const int line = pick(static_cast<std::size_t>(document.lineCount()));
    return Place{line, pick(document.line(line).size() + 1)};
  };
  const std::string_view pieces[] = {"x", "\n", "ab\ncd\n", "long piece of text", "\n\n"};
  for (int i = 0; i < 2000; ++i) {
    const Place a = anyPlace();
    const Place b = anyPlace();
    if (pick(3) != 0) {
      const std::string_view piece = pieces[pick(5)];
      model.insert(offsetOf(a), piece);
      document.insert(a, piece);
    } else if (a.line - b.line < 3 && b.line - a.line < 3 && !(a == b)) {
      const std::size_t from = offsetOf(std::min(a, b));
      model.erase(from, offsetOf(std::max(a, b)) - from);
      document.erase(a, b);
    } else {
      continue;
    }
    steps.push_back(model);
    REQUIRE(document.bytes() == model);
  }
  Place caret;
  for (std::size_t i = steps.size() - 1; i > 0; --i) {
    REQUIRE(document.undo(&caret));
    REQUIRE(document.bytes() == steps[i - 1]);
  }
  for (std::size_t i = 1; i < steps.size(); ++i) {
    REQUIRE(document.redo(&caret));
    REQUIRE(document.bytes() == steps[i]);
  }
}

TEST_CASE(
    "a renewed text is the bytes given, one step of undo, and keeps places outside the change") {
  // Pairs of texts from a small alphabet of line ends and letters.
  const std::string letters = "ab\r\n";
  std::uint32_t seed = 1;
  const auto text = [&] {
    std::string result;
    for (seed = seed * 1664525 + 1013904223; result.size() < seed >> 29; ++seed) {
      result += letters[seed * 2654435761u >> 30];
    }
    return result;
  };
  for (int i = 0; i < 2000; ++i) {
    const std::string before = text();
    const std::string after = text();
    CAPTURE(before);
    CAPTURE(after);
    Document document = documentOf(before);
    document.renew(after);
    CHECK(document.bytes() == after);
    CHECK(document.modified() == (before != after));
    Place caret;
    CHECK(document.undo(&caret) == (before != after));
    CHECK(document.bytes() == before);
  }
  // The encoding and the mark come and go with the text, even where they alone differ.
  const std::string forms[] = {"\xE9\n", "\xEF\xBB\xBF\xC3\xA9\n", "\xC3\xA9\n"};
  Document formed = documentOf(forms[0]);
  formed.renew(forms[1]);
  formed.renew(forms[2]);
  Place undone;
  for (const int form : {2, 1, 0}) {
    CAPTURE(form);
    CHECK(formed.bytes() == forms[form]);
    CHECK((formed.encoding() == workbench::Encoding::kUtf8) == (form > 0));
    CHECK(formed.undo(&undone) == (form > 0));
  }
  CHECK((formed.redo(&undone) && formed.bytes() == forms[1]));
  Document document = documentOf("a\nb\nc\nd\n");
  Recorder recorder;
  document.addListener(&recorder);
  document.renew("a\nb\nX\nY\nd\n");
  document.removeListener(&recorder);
  REQUIRE(recorder.changes.size() == 1);
  CHECK(recorder.changes[0].from == Place{2, 0});
  CHECK(recorder.changes[0].old_end == Place{2, 1});
  CHECK(recorder.changes[0].new_end == Place{3, 1});
}
