#include <string>

#include "doctest.h"
#include "workbench/script/key_name.h"

using workbench::KeyStroke;
using workbench::parseKey;

TEST_CASE("Keys are named as people name them") {
  const struct {
    const char* name;
    bool ctrl, alt, shift;
    int key;
  } rows[] = {
      {"a", false, false, false, 0x41},          {"Z", false, false, false, 0x5A},
      {"7", false, false, false, 0x37},          {"Ctrl+Shift+F5", true, false, true, 116},
      {"shift+ctrl+f5", true, false, true, 116}, {"Alt+F4", false, true, false, 115},
      {"F24", false, false, false, 135},         {"Enter", false, false, false, 13},
      {"Esc", false, false, false, 27},          {"vk222", false, false, false, 222},
      {"Ctrl+vk1", true, false, false, 1},       {"Ctrl", false, false, false, 17},
      {"Alt+-", false, true, false, 0xBD},       {"Shift+Plus", false, false, true, 0xBB},
  };
  for (const auto& row : rows) {
    CAPTURE(std::string(row.name));
    KeyStroke stroke;
    REQUIRE(parseKey(row.name, &stroke));
    CHECK(stroke.ctrl == row.ctrl);
    CHECK(stroke.alt == row.alt);
    CHECK(stroke.shift == row.shift);
    CHECK(stroke.key == row.key);
  }
}

TEST_CASE("Other names are no keys") {
  for (const char* name : {"", "+", "Ctrl+", "Hyper+a", "ab", "F0", "F25", "f1x", "vk0", "vk255",
                           "vk", "vk-1", "vk99999999999", "Enter+Ctrl", " a", "\xE9"}) {
    CAPTURE(std::string(name));
    KeyStroke stroke;
    stroke.key = 99;
    CHECK_FALSE(parseKey(name, &stroke));
    CHECK(stroke.key == 99);
  }
}
