// What has happened so far, and the questions a script asks about it. Plain
// values, no window.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "workbench/events/event.h"

namespace workbench {

// "*" in the pattern stands for any text, also none.
bool wildcardMatch(std::string_view pattern, std::string_view text);
// A menu text as it reads: "&File\tF10" is "File", "&&" is a real ampersand.
std::string plainItemText(std::string_view text);

// "EVENT" or "EVENT KEY VALUE". The value may hold wildcards. A key is the name
// of a field; "items.2.text" is a field of a list's item, "items.*.text" that of
// any item, "#7.text" that of the first item whose id is 7. In short, "item" is the text of any
// item, with or without its "&" and what follows a tab, and "count" the number of items. A field
// that is a list of plain values has a "|" between any two.
struct EventQuery {
  std::string name;
  std::optional<std::string> key;
  std::string value;

  bool matches(const Event& event) const;
};

// Positions count events from the start of the run and stay valid when events are
// let go: those before a place that nothing looks behind any more, and all but the
// last 20000. The most recent of each name stays.
class EventHistory {
 public:
  void add(const Event& event);
  // The position that the next event will get.
  size_t end() const { return dropped_ + events_.size(); }
  // Lets go what came before a position.
  void forget(size_t before);
  // The most recent event of that name, or null. Good until the next is added.
  const Event* latest(std::string_view name) const;
  // The position of the first match at or after one, or end().
  size_t find(const EventQuery& query, size_t from) const;
  const Event& at(size_t position) const { return events_[position - dropped_]; }

 private:
  void dropFirst();

  std::deque<Event> events_;
  std::map<std::string, Event, std::less<>> latest_;  // by name, of those let go
  size_t dropped_ = 0;
};

}  // namespace workbench
