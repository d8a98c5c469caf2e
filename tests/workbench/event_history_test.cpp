#include <string>

#include "doctest.h"
#include "workbench/script/event_history.h"

using workbench::Event;
using workbench::EventHistory;
using workbench::EventQuery;
using workbench::plainItemText;
using workbench::wildcardMatch;

TEST_CASE("A star stands for any text") {
  const struct {
    const char* pattern;
    const char* text;
    bool match;
  } rows[] = {
      {"", "", true},          {"", "a", false},        {"*", "", true},
      {"*", "anything", true}, {"abc", "abc", true},    {"abc", "abcd", false},
      {"abc", "ABC", false},   {"a*c", "abbc", true},   {"a*c", "abbcd", false},
      {"*ab", "aab", true},    {"*ab*", "xabab", true}, {"a*b*c", "a-b-b-c", true},
      {"a*b*c", "acb", false}, {"**", "", true},        {"a**", "a", true},
      {"a?", "ab", false},     {"[a]", "a", false},     {"*.cpp", "C:\\x\\a.cpp", true},
  };
  for (const auto& row : rows) {
    CAPTURE(std::string(row.pattern));
    CAPTURE(std::string(row.text));
    CHECK(wildcardMatch(row.pattern, row.text) == row.match);
  }
}

TEST_CASE("A menu text reads without its marks") {
  const struct {
    const char* text;
    const char* plain;
  } rows[] = {{"&File", "File"},   {"E&xit\tAlt+F4", "Exit"},
              {"a && b", "a & b"}, {"end&", "end&"},
              {"\tx", ""},         {"&&&c", "&c"}};
  for (const auto& row : rows) {
    CHECK(plainItemText(row.text) == row.plain);
  }
}

TEST_CASE("A query compares one field of an event") {
  Event menu("menu");
  menu.text("title", "x")
      .list("items",
            {Event("").number("id", 7).text("text", "&Open...\tF3"), Event("").text("text", "Quit"),
             Event("").number("id", 8).texts("rows", {"a", "b"}).numbers("at", {1, 3})});
  const struct {
    EventQuery query;
    bool match;
  } rows[] = {
      {{"menu", std::nullopt, ""}, true},
      {{"status", std::nullopt, ""}, false},
      {{"status", "title", "x"}, false},
      {{"menu", "title", "x"}, true},
      {{"menu", "title", "y"}, false},
      {{"menu", "nothing", "*"}, false},
      {{"menu", "items.0.id", "7"}, true},
      {{"menu", "items.1.id", "*"}, false},
      {{"menu", "items.*.id", "7"}, true},
      {{"menu", "items.*.text", "Quit"}, true},
      {{"menu", "items.*.text", "Open..."}, false},  // as it stands, with its marks
      {{"menu", "item", "Open..."}, true},
      {{"menu", "item", "&Open...\tF3"}, true},
      {{"menu", "item", "Close"}, false},
      {{"menu", "all.id", "7|8"}, true},
      {{"menu", "all.text", "&Open...\tF3|Quit"}, true},
      {{"menu", "all.text", "&Open...\tF3"}, false},
      {{"menu", "#7.text", "*F3"}, true},
      {{"menu", "#7.rows", "*"}, false},
      {{"menu", "#8.rows", "a|b"}, true},
      {{"menu", "#8.at", "1|3"}, true},
      {{"menu", "#9.rows", "*"}, false},
      {{"menu", "#8", "*"}, false},
      {{"menu", "count", "3"}, true},
      {{"menu", "count", "2"}, false},
  };
  for (const auto& row : rows) {
    CAPTURE(row.query.key.value_or(""));
    CAPTURE(row.query.value);
    CHECK(row.query.matches(menu) == row.match);
  }
}

TEST_CASE("What is forgotten is not found, but the latest of its name is known") {
  EventHistory history;
  for (const char* text : {"a", "b", "c"}) {
    history.add(Event("box").text("text", text));
    history.add(Event("menu").text("text", text));
  }
  const auto latest = [&history](const char* name) {
    const Event* event = history.latest(name);
    return event != nullptr ? *event->find("text") : "none";
  };
  history.forget(3);  // box and menu "a", box "b"
  CHECK(history.end() == 6);
  CHECK(history.find({"box", std::nullopt, ""}, 0) == 4);
  CHECK(history.find({"menu", "text", "b"}, 2) == 3);
  history.forget(100);
  CHECK(history.end() == 6);
  CHECK(history.find({"menu", std::nullopt, ""}, 0) == history.end());
  CHECK(latest("box") == "c");
  CHECK(latest("menu") == "c");
  CHECK(latest("tool") == "none");
  history.add(Event("box").text("text", "d"));
  CHECK(history.find({"box", std::nullopt, ""}, 0) == 6);
  CHECK(latest("box") == "d");
}

TEST_CASE("Positions stay true when the oldest events are let go") {
  EventHistory history;
  for (int i = 0; i < 20010; ++i) {
    history.add(Event("e").number("n", i));
  }
  CHECK(history.end() == 20010);
  size_t last = history.find({"e", "n", "20009"}, 0);
  CHECK(last == 20009);
  CHECK(*history.at(last).find("n") == "20009");
  CHECK(history.find({"e", "n", "3"}, 0) == history.end());
}
