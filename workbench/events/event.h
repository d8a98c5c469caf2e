// One thing that happened in the Workbench, as a line of JSON on standard output.
// Plain values: no window, no handle.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace workbench {

// One field of an event, already rendered as JSON, and its plain text form that
// a script's "expect" compares with.
struct EventField {
  std::string key;
  std::string json;
  std::string text;  // Windows-1252
};

// Texts given to an event are Windows-1252; the JSON is UTF-8.
class Event {
 public:
  explicit Event(std::string_view name);

  Event& text(std::string_view key, std::string_view ansi);
  Event& number(std::string_view key, long value);
  Event& flag(std::string_view key, bool value);
  // A list of objects, each an Event whose name is left out. Its plain text is
  // the number of items; the field of an item is found as "KEY.0.FIELD".
  Event& list(std::string_view key, const std::vector<Event>& items);
  // Lists of plain values. Their plain text has a "|" between any two.
  Event& texts(std::string_view key, const std::vector<std::string>& items);
  Event& numbers(std::string_view key, const std::vector<long>& items);

  const std::string& name() const { return name_; }
  const std::vector<EventField>& fields() const { return fields_; }
  // The plain text of a field, or null when the event has none of that key.
  const std::string* find(std::string_view key) const;
  const std::vector<EventField>& itemFields() const { return parts_; }
  // {"event":"status","text":"..."}: one line, no line end.
  std::string toJson() const;

 private:
  std::string name_;
  std::vector<EventField> fields_;
  std::vector<EventField> parts_;  // the fields of list items, under dotted keys
};

}  // namespace workbench
