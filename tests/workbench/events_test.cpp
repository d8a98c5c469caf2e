#include <string>

#include "doctest.h"
#include "workbench/events/ansi.h"
#include "workbench/events/event.h"
#include "workbench/events/event_log.h"

using workbench::ansiFromUtf8;
using workbench::Event;
using workbench::EventLog;
using workbench::jsonString;

TEST_CASE("Windows-1252 becomes UTF-8 and comes back") {
  const struct {
    const char* ansi;
    const char* utf8;
  } rows[] = {
      {"plain ~", "plain ~"},
      {"\xE9\xA7\xFF", "\xC3\xA9\xC2\xA7\xC3\xBF"},  // e acute, section sign, y diaeresis
      {"\x80", "\xE2\x82\xAC"},                      // euro sign
      {"\x93\x94", "\xE2\x80\x9C\xE2\x80\x9D"},      // curly quotes
      {"\x9F\xA0", "\xC5\xB8\xC2\xA0"},              // Y diaeresis, no-break space
      {"\x81", "\xC2\x81"},                          // a byte without a character
  };
  for (const auto& row : rows) {
    CAPTURE(std::string(row.utf8));
    CHECK(jsonString(row.ansi) == '"' + std::string(row.utf8) + '"');
    std::string back;
    CHECK(ansiFromUtf8(row.utf8, &back));
    CHECK(back == row.ansi);
  }
}

TEST_CASE("What is not UTF-8 is refused") {
  const char* const rows[] = {
      "\xE9t\xE9",         // Windows-1252
      "\xC3",              // cut off
      "\xE2\x82",          //
      "\xC0\xAF",          // longer than needed
      "\xE0\x80\xAF",      //
      "\xF5\x80\x80\x80",  // beyond the last plane
      "\x80",              // starts in the middle
  };
  for (const char* row : rows) {
    CAPTURE(jsonString(row));
    std::string ansi = "left";
    CHECK_FALSE(ansiFromUtf8(row, &ansi));
    CHECK(ansi.empty());
  }
  std::string ansi;
  CHECK(ansiFromUtf8("a\xF0\x9F\x98\x80z", &ansi));
  CHECK(ansi == "a?z");
}

TEST_CASE("A JSON string is escaped") {
  const struct {
    std::string ansi;
    const char* json;
  } rows[] = {
      {"", R"("")"},
      {R"(C:\a "b")", R"("C:\\a \"b\"")"},
      {"a\tb\r\n\b\f", R"("a\tb\r\n\b\f")"},
      {std::string("\0\1\x0B\x10\x1A\x1F\x7F", 7),
       R"("\u0000\u0001\u000b\u0010\u001a\u001f\u007f")"},
      {"a/\xE9", "\"a/\xC3\xA9\""},
  };
  for (const auto& row : rows) {
    CHECK(jsonString(row.ansi) == row.json);
  }
}

TEST_CASE("An event emitted by the listener follows the current one") {
  EventLog log;
  log.setOutput(false);
  std::string order;
  int depth = 0;
  log.setListener([&](const Event& event) {
    CHECK(++depth == 1);
    if (event.name() == "a") {
      log.emit(Event("b"));
      log.emit(Event("c"));
    }
    order += event.name();
    --depth;
  });
  log.emit(Event("a"));
  CHECK(order == "abc");
  log.setListener({});
  log.emit(Event("d"));
  CHECK(order == "abc");
}
