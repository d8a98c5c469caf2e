#include "workbench/script/key_name.h"

#include <charconv>
#include <string>

namespace workbench {
namespace {

struct NamedKey {
  std::string_view name;
  int key;
};

// Lower case; punctuation stands where the US layout has it.
constexpr NamedKey kKeys[] = {
    {"backspace", 0x08}, {"tab", 0x09},    {"enter", 0x0D},  {"return", 0x0D},   {"escape", 0x1B},
    {"esc", 0x1B},       {"space", 0x20},  {"pageup", 0x21}, {"pagedown", 0x22}, {"end", 0x23},
    {"home", 0x24},      {"left", 0x25},   {"up", 0x26},     {"right", 0x27},    {"down", 0x28},
    {"insert", 0x2D},    {"delete", 0x2E}, {"shift", 0x10},  {"ctrl", 0x11},     {"alt", 0x12},
    {"pause", 0x13},     {"apps", 0x5D},   {"plus", 0xBB},   {";", 0xBA},        {"=", 0xBB},
    {",", 0xBC},         {"-", 0xBD},      {".", 0xBE},      {"/", 0xBF},        {"`", 0xC0},
    {"[", 0xDB},         {"\\", 0xDC},     {"]", 0xDD},      {"'", 0xDE},
};

int numberAfter(std::string_view name, size_t prefix, int least, int most) {
  int number = 0;
  const char* end = name.data() + name.size();
  auto [stop, fault] = std::from_chars(name.data() + prefix, end, number);
  bool good = fault == std::errc() && stop == end && number >= least && number <= most;
  return good ? number : 0;
}

// Returns 0 for a name that is no key.
int keyCode(std::string_view name) {
  if (name.size() == 1 && name[0] >= 'a' && name[0] <= 'z') {
    return name[0] - 'a' + 'A';
  }
  if (name.size() == 1 && name[0] >= '0' && name[0] <= '9') {
    return name[0];
  }
  for (const NamedKey& named : kKeys) {
    if (named.name == name) {
      return named.key;
    }
  }
  if (name.substr(0, 2) == "vk") {
    return numberAfter(name, 2, 1, 254);
  }
  int function = name.substr(0, 1) == "f" ? numberAfter(name, 1, 1, 24) : 0;
  return function != 0 ? 0x6F + function : 0;
}

bool takePrefix(std::string_view* rest, std::string_view prefix) {
  if (rest->substr(0, prefix.size()) != prefix || rest->size() == prefix.size()) {
    return false;
  }
  rest->remove_prefix(prefix.size());
  return true;
}

}  // namespace

bool parseKey(std::string_view name, KeyStroke* stroke) {
  std::string lower(name);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') {
      c = static_cast<char>(c - 'A' + 'a');
    }
  }
  std::string_view rest = lower;
  KeyStroke read;
  while (true) {
    if (takePrefix(&rest, "ctrl+")) {
      read.ctrl = true;
    } else if (takePrefix(&rest, "alt+")) {
      read.alt = true;
    } else if (takePrefix(&rest, "shift+")) {
      read.shift = true;
    } else {
      break;
    }
  }
  read.key = keyCode(rest);
  if (read.key == 0) {
    return false;
  }
  *stroke = read;
  return true;
}

}  // namespace workbench
