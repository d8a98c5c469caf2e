#include "addon/foundation/text_file.h"

#include <cstdio>
#include <string>
#include <vector>

#include "doctest.h"

namespace kesto {

using namespace std::string_literals;

namespace {

// A file of these bytes in the current directory, gone with the object.
class NamedFile {
 public:
  explicit NamedFile(const std::string& bytes = {}) {
    FILE* const file = fopen(path(), "wb");
    REQUIRE(file != nullptr);
    fwrite(bytes.data(), 1, bytes.size(), file);
    fclose(file);
  }
  NamedFile(const NamedFile&) = delete;
  NamedFile& operator=(const NamedFile&) = delete;
  ~NamedFile() { remove(path()); }

  static const char* path() { return "text_file_test.tmp"; }
  static std::string bytes() {
    std::string all;
    FILE* const file = fopen(path(), "rb");
    REQUIRE(file != nullptr);
    for (int c = getc(file); c != EOF; c = getc(file)) {
      all += static_cast<char>(c);
    }
    fclose(file);
    return all;
  }
};

std::vector<std::string> piecesOf(const std::string& text, std::size_t limit) {
  std::vector<std::string> pieces;
  TextLines lines(text, limit);
  std::string_view piece;
  while (lines.next(piece)) {
    pieces.emplace_back(piece);
  }
  return pieces;
}

}  // namespace

TEST_CASE("a file's bytes as text") {
  const struct {
    std::string bytes, text;
  } cases[] = {
      {"", ""},
      {"a\r\nb\r\n", "a\nb\n"},
      {"a\nb", "a\nb"},
      {"a\rb\r", "a\rb\r"},              // a CR alone stays
      {"a\r\r\nb\r\r\n", "a\r\nb\r\n"},  // of two CRs the one at the line feed goes
      {"a\n\rb\r\n", "a\n\rb\n"},
      {"a\r\n\x1A"
       "b\r\n",
       "a\n"},  // Ctrl-Z ends the text
      {"\x1A", ""},
      {"a\r\x1A\n", "a\r"},
      {"a\0b\r\n\0"s, "a\0b\n\0"s},
  };
  for (const auto& c : cases) {
    CAPTURE(c.bytes.substr(0, 20));
    const NamedFile file(c.bytes);
    std::string text = "before";
    CHECK(readTextFile(NamedFile::path(), text));
    CHECK(text == c.text);
  }
}

TEST_CASE("what cannot be read leaves no text") {
  for (const char* path : {"text_file_test.missing", ".", ""}) {
    CAPTURE(path);
    std::string text = "before";
    CHECK(!readTextFile(path, text));
    CHECK(text.empty());
  }
  const NamedFile file;
  FILE* const too_long = fopen(NamedFile::path(), "wb");
  REQUIRE(too_long != nullptr);
  CHECK(fseek(too_long, kTextFileLimit, SEEK_SET) == 0);
  putc('x', too_long);
  fclose(too_long);
  std::string text = "before";
  CHECK(!readTextFile(NamedFile::path(), text));
  CHECK(text.empty());
}

TEST_CASE("a text is written with the system's line ends and read back as it was") {
  const std::string text = "one\n\ntwo\rthree\0four\n\xE9"s;
  const NamedFile file("something longer that was there before");
  CHECK(writeTextFile(NamedFile::path(), text));
#ifdef _WIN32
  CHECK(NamedFile::bytes() == "one\r\n\r\ntwo\rthree\0four\r\n\xE9"s);
#else
  CHECK(NamedFile::bytes() == text);
#endif
  std::string again;
  CHECK(readTextFile(NamedFile::path(), again));
  CHECK(again == text);
  CHECK(writeTextFile(NamedFile::path(), ""));
  CHECK(NamedFile::bytes().empty());
  CHECK(appendTextFile(NamedFile::path(), "a\nb"));
  CHECK(appendTextFile(NamedFile::path(), "c\n"));
  CHECK(readTextFile(NamedFile::path(), again));
  CHECK(again == "a\nbc\n");
  CHECK(!writeTextFile(".", text));
  CHECK(!writeTextFile("no such directory/file", text));
}

TEST_CASE("lines through a buffer") {
  const struct {
    std::string text;
    std::size_t limit;
    std::vector<std::string> pieces;
  } cases[] = {
      {"", 10, {}},
      {"\n", 10, {"\n"}},
      {"ab\ncd", 10, {"ab\n", "cd"}},
      {"abc\n", 5, {"abc\n"}},        // just fits, its terminator too
      {"abcd\n", 5, {"abcd", "\n"}},  // the line feed is left for the next read
      {"abcdefghij\nk\n", 5, {"abcd", "efgh", "ij\n", "k\n"}},
      {"ab\n", 2, {"a", "b", "\n"}},
      {"a\0b\nc\n"s, 10, {"a", "c\n"}},         // the piece ends at its zero byte
      {"\0abcdefg\n"s, 5, {"", "defg", "\n"}},  // and hides no more than its piece
      {"a\rb\r\n", 10, {"a\rb\r\n"}},
  };
  for (const auto& c : cases) {
    CAPTURE(c.text);
    CAPTURE(c.limit);
    CHECK(piecesOf(c.text, c.limit) == c.pieces);
  }
}

TEST_CASE("a line without its end") {
  const struct {
    std::string_view line, rest;
  } cases[] = {
      {"a\n", "a"}, {"a", "a"},   {"a\r\n", "a\r"}, {"a\t", "a"},       {"\n", ""},
      {"", ""},     {"a ", "a "}, {"\xE9", "\xE9"}, {"a\x7F", "a\x7F"},
  };
  for (const auto& c : cases) {
    CAPTURE(std::string(c.line));
    CHECK(withoutLineEnd(c.line) == c.rest);
  }
}

}  // namespace kesto
