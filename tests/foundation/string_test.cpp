#include "addon/foundation/string.h"

#include <climits>
#include <cstring>
#include <string>

#include "addon/foundation/assertion.h"
#include "addon/foundation/message_box.h"
#include "doctest.h"
#include "tests/foundation/byte_file.h"
#include "tests/foundation/recorded_boxes.h"

namespace kesto {

using namespace std::string_literals;

TEST_CASE("a string holds what it is made of, assigned and appended") {
  CHECK(String() == "");
  CHECK(String(static_cast<const char*>(nullptr)) == "");
  CHECK(String(-12L) == "-12");
  String text("abc");
  text += 7;
  text += "";
  text += String("-x");
  CHECK(text == "abc7-x");
  CHECK(text.length() == 6);
  const String copy(text);
  text = 42;
  CHECK(text == "42");
  CHECK(text.length() == 2);
  CHECK(copy == "abc7-x");
}

TEST_CASE("a text shortened through its pointer is continued where it ends") {
  String text("abcdef");
  static_cast<char*>(text)[2] = '\0';
  text += "xy";
  CHECK(text == "abxy");
}

TEST_CASE("a string is cut at 65535 characters") {
  const std::string longer(70000, 'x');
  String text(longer.c_str());
  CHECK(text.length() == 65535);
  text += "y";
  CHECK(strlen(text) == 65535);
  CHECK(text[65534] == 'x');
}

TEST_CASE("a string's number is what it starts with") {
  CHECK(static_cast<long int>(String("12 apples")) == 12);
  CHECK(static_cast<long int>(String("  -3")) == -3);
  CHECK(static_cast<long int>(String("apples 12")) == 0);
  CHECK(static_cast<long int>(String("")) == 0);
}

TEST_CASE("an index beyond the terminator shows a box and yields a shared empty string") {
  const String text("abc");
  CHECK(*text.at(0) == 'a');
  CHECK(*text.at(3) == '\0');
  CHECK(takeBoxes().empty());
  for (const long long index : {4LL, -1LL, 65536LL, LLONG_MAX}) {
    CAPTURE(index);
    char* outside = text.at(index);
    CHECK(*outside == '\0');
    *outside = 'x';
    const auto boxes = takeBoxes();
    REQUIRE(boxes.size() == 1);
    CHECK(boxes[0].text == "Parcours de chaine hors limite !");
    CHECK(boxes[0].caption == "Erreur");
    CHECK(boxes[0].flags == kMessageOk);
  }
}

TEST_CASE("a string's file form") {
  const struct {
    String text;
    std::string bytes;
  } cases[] = {
      {String(), "\0\0\0"s},
      {String("ab"), "\2\0ab\0"s},
      {String(std::string(258, 'z').c_str()), "\2\1"s + std::string(258, 'z') + '\0'},
  };
  for (const auto& c : cases) {
    const ByteFile file;
    CHECK(c.text.fWrite(file.get()) == 1);
    CHECK(file.bytes() == c.bytes);
    rewind(file.get());
    String read("before");
    CHECK(read.fRead(file.get()) == 1);
    CHECK(read == c.text);
    CHECK(read.length() == c.text.length());
  }
}

TEST_CASE("a damaged string is a failed read") {
  const std::string whole = "\4\0word\0"s;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    CAPTURE(size);
    String read;
    CHECK(read.fRead(ByteFile(whole.substr(0, size)).get()) == 0);
    CHECK(strlen(read) == static_cast<std::size_t>(read.length()));
  }
  String lying;
  CHECK(lying.fRead(ByteFile("\xFF\xFFxyz"s).get()) == 0);
  CHECK(lying == "xyz");
  // The terminator stands in the file, but is not believed.
  String unterminated;
  CHECK(unterminated.fRead(ByteFile("\2\0abX"s).get()) == 1);
  CHECK(unterminated == "ab");
}

TEST_CASE("the root's operations tell that they are missing") {
  Basic basic;
  const ByteFile file;
  CHECK(basic.fWrite(file.get()) == 0);
  CHECK(basic.fRead(file.get()) == 0);
  CHECK(static_cast<char*>(basic) == nullptr);
  CHECK(static_cast<long int>(basic) == 0);
  const auto boxes = takeBoxes();
  const char* const names[] = {"fWrite", "fRead", "char *", "long int"};
  REQUIRE(boxes.size() == std::size(names));
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    CHECK(boxes[i].text == "Appel de Basic::"s + names[i] + " virtuelle pure !");
    CHECK(boxes[i].caption == "Erreur");
    CHECK(boxes[i].flags == kMessageIconHand);
  }
}

TEST_CASE("a failed check shows its source, line and condition, and goes on") {
  CHECK(checkThat(true, "svr!=NULL", "koptions", 13));
  CHECK(takeBoxes().empty());
  CHECK_FALSE(checkThat(false, "svr!=NULL", "koptions", 13));
  const auto boxes = takeBoxes();
  REQUIRE(boxes.size() == 1);
  CHECK(boxes[0].caption == "Erreur");
  for (const char* part : {"svr!=NULL", "koptions", "13"}) {
    CHECK(boxes[0].text.find(part) != std::string::npos);
  }
}

}  // namespace kesto
