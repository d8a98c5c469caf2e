#include "workbench/editor/encoding.h"

#include <string>
#include <vector>

#include "doctest.h"
#include "workbench/editor/document.h"
#include "workbench/editor/text_layout.h"
#include "workbench/events/ansi.h"

using namespace workbench;
using namespace std::string_view_literals;

namespace {

constexpr Encoding kBoth[] = {Encoding::kAnsi, Encoding::kUtf8};

// Texts of characters of every length, of line ends, and of bytes that make none.
class Texts {
 public:
  std::string next() {
    static const std::string_view pieces[] = {"a"sv, " "sv, "\t"sv, "\0"sv, "\r"sv, "\n"sv,
                                              "\r\n"sv, "\xC3\xA9"sv, "\xCE\xA9"sv,
                                              "\xE2\x82\xAC"sv, "\xF0\x9F\x98\x80"sv,
                                              // No whole characters, and the mark.
                                              "\xE9"sv, "\x80"sv, "\xE2\x82"sv, "\xED\xA0\x80"sv,
                                              "\xC0\xAF"sv, "\xF4\x90\x80\x80"sv, "\xEF\xBB\xBF"sv};
    std::string result;
    for (std::size_t length = number(12); length > 0; --length) {
      // Every other text is whole UTF-8.
      result += pieces[number(even_ ? 11 : std::size(pieces))];
    }
    even_ = !even_;
    return result;
  }
  std::size_t number(std::size_t below) {
    seed_ = seed_ * 1664525 + 1013904223;
    return (seed_ >> 8) % below;
  }

 private:
  std::uint32_t seed_ = 1;
  bool even_ = true;
};

}  // namespace

TEST_CASE("an encoding is told by the mark, or by bytes beyond ASCII that are all UTF-8") {
  const struct {
    std::string_view bytes;
    Encoding encoding;
  } cases[] = {
      {"", Encoding::kAnsi},
      {"plain\n", Encoding::kAnsi},
      {"\xEF\xBB\xBF", Encoding::kUtf8},
      {"\xEF\xBB\xBF"
       "caf\xE9",
       Encoding::kUtf8},
      {"caf\xC3\xA9", Encoding::kUtf8},
      {"caf\xE9", Encoding::kAnsi},
      {"\xC3\xA9 caf\xE9", Encoding::kAnsi},
      {"\xC3", Encoding::kAnsi},
      {"\xED\xA0\x80", Encoding::kAnsi},      // half of a pair
      {"\xC0\xAF", Encoding::kAnsi},          // longer than it need be
      {"\xF4\x90\x80\x80", Encoding::kAnsi},  // beyond the last character
  };
  for (const auto& each : cases) {
    CAPTURE(each.bytes);
    CHECK(encodingOf(each.bytes) == each.encoding);
  }
}

TEST_CASE("no byte changes that was not edited, whatever a file holds") {
  Texts texts;
  for (int i = 0; i < 5000; ++i) {
    const std::string before = texts.next() + texts.next();
    Document document;
    document.load(before);
    CHECK(document.bytes() == before);
    // Typed at a place where a character begins, and taken away again.
    const int line = static_cast<int>(texts.number(static_cast<std::size_t>(document.lineCount())));
    const std::string& text = document.line(line);
    const int column = startOfCharacter(text, static_cast<int>(texts.number(text.size() + 1)),
                                        document.encoding());
    const std::string left = document.textBetween({0, 0}, {line, column});
    const std::string right = document.textBetween({line, column}, document.endPlace());
    const std::string mark = before.substr(0, before.size() - left.size() - right.size());
    CHECK((mark.empty() || mark == kUtf8Mark));
    const Place end = document.insert({line, column}, fromAnsi("\xE9", document.encoding()));
    std::string wanted = mark;
    wanted += left;
    wanted += fromAnsi("\xE9", document.encoding());
    wanted += right;
    CHECK(document.bytes() == wanted);
    CHECK(previousColumn(document.line(line), end.column, document.encoding()) == column);
    document.erase({line, column}, end);
    CHECK(document.bytes() == before);
  }
}

TEST_CASE("characters are walked one way like the other, and add-ons see a byte for each") {
  Texts texts;
  for (int i = 0; i < 5000; ++i) {
    const std::string line = texts.next();
    for (const Encoding encoding : kBoth) {
      const int size = static_cast<int>(line.size());
      int count = 0;
      int before = 0;
      for (int at = 0; at < size; ++count) {
        CHECK(charactersBefore(line, at, encoding) == count);
        CHECK(columnOfCharacter(line, count, encoding) == at);
        before = at;
        at = nextColumn(line, at, encoding);
        CHECK(previousColumn(line, at, encoding) == before);
        for (int inside = before; inside < at; ++inside) {
          CHECK(startOfCharacter(line, inside, encoding) == before);
        }
      }
      CHECK(charactersBefore(line, size + 3, encoding) == count + 3);
      CHECK(columnOfCharacter(line, count + 3, encoding) == size + 3);
      CHECK(toAnsi(line, encoding).size() == static_cast<std::size_t>(count));
      std::string again;
      CHECK(fromWide(toWide(line, encoding), Encoding::kUtf8, &again));
      std::string ansi;
      if (encoding == Encoding::kUtf8 && ansiFromUtf8(line, &ansi)) {
        CHECK(again == line);
        CHECK(toAnsi(line, encoding) == ansi);
      }
    }
  }
  CHECK(toAnsi("f\xC3\xAAte \xE2\x82\xAC\xCE\xA9\xF0\x9F\x98\x80\x85\r\n", Encoding::kUtf8) ==
        "f\xEAte \x80??\x85\r\n");
  std::string text;
  CHECK_FALSE(fromWide(L"\x3A9", Encoding::kAnsi, &text));
  CHECK(fromWide(L"?\x20AC", Encoding::kAnsi, &text));
  CHECK(text == "?\x80");
  CHECK(fromWide(std::wstring{0xD83D, 0xDE00, 0xD83D, L'x', 0xDE00}, Encoding::kUtf8, &text));
  CHECK(text == "\xF0\x9F\x98\x80?x?");
}

TEST_CASE("a character takes one cell, and a word keeps its letters") {
  const std::string line = "\t\xCE\xA9\xC3\xA9 b";
  CHECK(cellOfColumn(line, 3, 4, Encoding::kUtf8) == 5);
  CHECK(columnOfCell(line, 5, 4, Encoding::kUtf8) == 3);
  CHECK(cellsOfLine(line, 4, Encoding::kUtf8) == 8);
  CHECK(nextWord(line, 1, Encoding::kUtf8) == 6);
  CHECK(previousWord(line, 6, Encoding::kUtf8) == 1);
}

TEST_CASE("a plain text may become UTF-8, one with bytes of the code page may not") {
  Document document;
  document.load("plain");
  CHECK(document.becomeUtf8());
  document.load("caf\xE9");
  CHECK_FALSE(document.becomeUtf8());
  CHECK(document.encoding() == Encoding::kAnsi);
}
