#include "addon/navigation/name_matchers.h"

#include <string>
#include <vector>

#include "doctest.h"

namespace kesto {

namespace {

struct Case {
  const char* name;
  const char* line;
  const char* hit;  // what a list shows, null for a miss
};

void check(Search search, const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    CAPTURE(std::string(c.name));
    CAPTURE(std::string(c.line));
    // Around it lines that hold no name.
    const std::string text = std::string("{\r\n\n") + c.line + "\r\n}\n";
    LineReader reader(text);
    std::string_view shown;
    const bool found = NameMatcher(search, c.name).findNext(reader, shown);
    CHECK(found == (c.hit != nullptr));
    if (found && c.hit != nullptr) {
      CHECK(std::string(shown) == c.hit);
      CHECK(reader.number() == 3);
      CHECK(!NameMatcher(search, c.name).findNext(reader, shown));
    }
  }
}

// Where a search of the text stops: the numbers of all its hits.
std::vector<int> hitLines(Search search, const char* name, std::string_view text) {
  std::vector<int> lines;
  LineReader reader(text);
  std::string_view shown;
  const NameMatcher matcher(search, name);
  while (matcher.findNext(reader, shown)) {
    lines.push_back(reader.number());
  }
  return lines;
}

}  // namespace

TEST_CASE("a function's line") {
  check(Search::kFunction,
        {
            {"Paint", "void Frame::Paint(HDC dc)", "void Frame::Paint(HDC dc)"},
            {"Paint", "void Frame::PaintAll(HDC dc)", nullptr},
            {"Paint", "void Frame::RePaint(HDC dc)", nullptr},
            {"Paint", "Paint(HDC dc)", "Paint(HDC dc)"},
            {"Paint", "int Paint (", "int Paint ("},
            {"Paint", "int *Paint(", "int *Paint("},
            {"Paint", "int Paint", nullptr},
            {"Paint", " int Paint()", nullptr},
            {"Paint", "\tint Paint()", nullptr},
            {"Paint", "\xE9 Paint()", nullptr},
            {"Paint", "/int Paint()", nullptr},
            {"Paint", "#define Paint()", nullptr},
            {"Paint", "::Paint()", nullptr},
            {"Paint", "int Paint();", nullptr},
            {"Paint", "int Paint() { // ;", nullptr},
            {"Paint", "int draw(int Paint)", nullptr},
            {"Paint", "int draw() Paint()", nullptr},
            {"Paint", "Painter Paint()", nullptr},  // only the first place counts
            {"Paint", "int _Paint()", nullptr},
            {"Paint", "int Paint2()", nullptr},
            {"Paint", "int \xE9Paint\xE9()", "int \xE9Paint\xE9()"},
            {"P", "int P(", "int P("},
            {"operator==", "bool operator==(int)", "bool operator==(int)"},
            {"Paint(", "int Paint(int)", nullptr},  // a digit or letter follows
            {"Paint(", "int Paint()", "int Paint()"},
        });
}

TEST_CASE("a method's line") {
  check(Search::kMethod,
        {
            {"Paint", "void Frame::Paint(HDC dc)", "Frame::Paint"},
            {"Paint", "Frame::Paint()", "Frame::Paint"},
            {"Paint", "void *Frame :: Paint()", ":: Paint"},
            {"Paint", "void A::B::Paint()", "A::B::Paint"},
            {"Paint", "::Paint()", nullptr},
            {"Paint", "void Paint()", nullptr},
            {"Paint", "void Frame::Paint()  // ;", nullptr},
            {"Paint", "void Frame::PaintAll()", nullptr},
            {"Paint", "void Frame::Paint", nullptr},
            {"Paint", "void Paint(Frame::Kind)", nullptr},
            {"Kind", "void Paint(Frame::Kind k)", nullptr},
            {"Frame", "void Frame::Frame()", nullptr},  // the first stands before the "::"
            {"Frame", "Frame::Frame()", nullptr},
            {"~Frame", "Frame::~Frame()", "Frame::~Frame"},
            {":Paint", "Frame::Paint()", "Frame::Paint"},
            {" Paint", "Frame:: Paint()", "Frame:: Paint"},
        });
}

TEST_CASE("a class's line") {
  check(Search::kClass, {
                            {"Frame", "class Frame", "class Frame"},
                            {"Frame", "class Frame : public Win {", "class Frame : public Win {"},
                            {"Frame", "class\tFrame", "class\tFrame"},
                            {"Win", "class Frame : public Win", "class Frame : public Win"},
                            {"Foo", "class FooBar : public Foo", nullptr},
                            {"Frame", "class Frame;", nullptr},
                            {"Frame", " class Frame", nullptr},
                            {"Frame", "Class Frame", nullptr},
                            {"Frame", "classy Frame", nullptr},
                            {"Frame", "class_ Frame", nullptr},
                            {"Frame", "struct Frame", nullptr},
                            {"Frame", "template <class T> class Frame", nullptr},
                            {"F", "class F", "class F"},
                            {"class", "class ", nullptr},  // six characters
                            {"class Frame", "class Frame", "class Frame"},
                        });
}

TEST_CASE("a cross reference's line") {
  check(Search::kCross, {
                            {"Paint", "  Paint();", "  Paint();"},
                            {"Paint", "\treturn Paint;", "\treturn Paint;"},
                            {"Paint", " frame->Paint", " frame->Paint"},
                            {"Paint", "\xE9 Paint", "\xE9 Paint"},
                            {"Paint", "Paint();", nullptr},
                            {"Paint", "#Paint", nullptr},
                            {"Paint", " RePaint();", nullptr},
                            {"Paint", " Paint2", nullptr},
                            {"Paint", " Painter p; Paint();", nullptr},
                            {"Paint", " Paint(Paint)", " Paint(Paint)"},
                            {" Paint", " Paint()", " Paint()"},
                            {"Paint", " ; // Paint", " ; // Paint"},
                        });
}

TEST_CASE("lines end at CR, LF, both or a zero byte, and each is tried once") {
  using Lines = std::vector<int>;
  const std::string zero(1, '\0');
  CHECK(hitLines(Search::kCross, "x", " x\r x\n x\r\n x" + zero + " x") == Lines{1, 2, 3, 4, 5});
  CHECK(hitLines(Search::kCross, "x", " x x x\n\n\r\r\n x") == Lines{1, 5});
  CHECK(hitLines(Search::kCross, "x", "\n\r x") == Lines{3});
  CHECK(hitLines(Search::kCross, "x", "x\n x") == Lines{2});
  CHECK(hitLines(Search::kCross, "x", "").empty());
  CHECK(hitLines(Search::kCross, "x", " ").empty());
  CHECK(hitLines(Search::kCross, "", " x").empty());
  // A name that goes over a line's end is in no line.
  CHECK(hitLines(Search::kCross, "a\r\nb", " a\r\nb").empty());
  CHECK(hitLines(Search::kCross, "long_name_at_end", " long_name_at_end") == Lines{1});
}

}  // namespace kesto
