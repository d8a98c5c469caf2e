#include "workbench/events/event.h"

#include <utility>

#include "workbench/events/ansi.h"

namespace workbench {
namespace {

void appendFields(std::string& out, const std::vector<EventField>& fields, bool first) {
  for (const EventField& field : fields) {
    if (!first) {
      out += ',';
    }
    first = false;
    out += jsonString(field.key);
    out += ':';
    out += field.json;
  }
}

const std::string* findIn(const std::vector<EventField>& fields, std::string_view key) {
  for (const EventField& field : fields) {
    if (field.key == key) {
      return &field.text;
    }
  }
  return nullptr;
}

// A value of the list that the field's JSON has opened.
void addValue(EventField& list, const std::string& json, const std::string& text) {
  if (list.json.size() > 1) {
    list.json += ',';
    list.text += '|';
  }
  list.json += json;
  list.text += text;
}

}  // namespace

Event::Event(std::string_view name) : name_(name) {}

Event& Event::text(std::string_view key, std::string_view ansi) {
  fields_.push_back({std::string(key), jsonString(ansi), std::string(ansi)});
  return *this;
}

Event& Event::number(std::string_view key, long value) {
  std::string digits = std::to_string(value);
  fields_.push_back({std::string(key), digits, digits});
  return *this;
}

Event& Event::flag(std::string_view key, bool value) {
  std::string word = value ? "true" : "false";
  fields_.push_back({std::string(key), word, word});
  return *this;
}

Event& Event::list(std::string_view key, const std::vector<Event>& items) {
  std::string json = "[";
  for (size_t i = 0; i < items.size(); ++i) {
    if (i != 0) {
      json += ',';
    }
    json += '{';
    appendFields(json, items[i].fields_, true);
    json += '}';
    std::string prefix = std::string(key) + '.' + std::to_string(i) + '.';
    for (const EventField& field : items[i].fields_) {
      parts_.push_back({prefix + field.key, field.json, field.text});
    }
  }
  json += ']';
  fields_.push_back({std::string(key), json, std::to_string(items.size())});
  return *this;
}

Event& Event::texts(std::string_view key, const std::vector<std::string>& items) {
  EventField field{std::string(key), "[", ""};
  for (const std::string& item : items) {
    addValue(field, jsonString(item), item);
  }
  field.json += ']';
  fields_.push_back(std::move(field));
  return *this;
}

Event& Event::numbers(std::string_view key, const std::vector<long>& items) {
  EventField field{std::string(key), "[", ""};
  for (long item : items) {
    addValue(field, std::to_string(item), std::to_string(item));
  }
  field.json += ']';
  fields_.push_back(std::move(field));
  return *this;
}

const std::string* Event::find(std::string_view key) const {
  const std::string* text = findIn(fields_, key);
  return text != nullptr ? text : findIn(parts_, key);
}

std::string Event::toJson() const {
  std::string out = "{\"event\":" + jsonString(name_);
  appendFields(out, fields_, false);
  out += '}';
  return out;
}

}  // namespace workbench
