#include "workbench/script/event_history.h"

#include <utility>

namespace workbench {
namespace {

constexpr size_t kKept = 20000;

bool anyItem(const Event& event, std::string_view key_pattern, const std::string& value,
             bool plain_too) {
  for (const EventField& field : event.itemFields()) {
    if (wildcardMatch(key_pattern, field.key) &&
        (wildcardMatch(value, field.text) ||
         (plain_too && wildcardMatch(value, plainItemText(field.text))))) {
      return true;
    }
  }
  return false;
}

// That field of every item that has it.
std::string ofAllItems(const Event& event, std::string_view name) {
  std::string all;
  for (const EventField& field : event.itemFields()) {
    if (wildcardMatch(std::string("items.*.").append(name), field.key)) {
      all.append(field.text).append("|");
    }
  }
  return all.substr(0, all.rfind('|'));
}

// "#ID.FIELD" is that field of the first item with that id.
const std::string* ofNumberedItem(const Event& event, std::string_view key) {
  const size_t dot = key.find('.');
  for (const EventField& field : event.itemFields()) {
    if (dot != std::string_view::npos && wildcardMatch("items.*.id", field.key) &&
        field.text == key.substr(1, dot - 1)) {
      return event.find(field.key.substr(0, field.key.size() - 2).append(key.substr(dot + 1)));
    }
  }
  return nullptr;
}

}  // namespace

std::string plainItemText(std::string_view text) {
  std::string plain;
  text = text.substr(0, text.find('\t'));
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) {
      ++i;
    }
    plain += text[i];
  }
  return plain;
}

bool wildcardMatch(std::string_view pattern, std::string_view text) {
  size_t p = 0, t = 0, star = std::string_view::npos, resume = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = t;
    } else if (p < pattern.size() && pattern[p] == text[t]) {
      ++p;
      ++t;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      t = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') {
    ++p;
  }
  return p == pattern.size();
}

bool EventQuery::matches(const Event& event) const {
  if (event.name() != name) {
    return false;
  }
  if (!key) {
    return true;
  }
  if (const std::string* text = event.find(*key)) {
    return wildcardMatch(value, *text);
  }
  if (*key == "item") {
    return anyItem(event, "items.*.text", value, true);
  }
  if (key->starts_with('#')) {
    const std::string* text = ofNumberedItem(event, *key);
    return text != nullptr && wildcardMatch(value, *text);
  }
  if (key->starts_with("all.")) {
    return wildcardMatch(value, ofAllItems(event, std::string_view(*key).substr(4)));
  }
  if (*key == "count") {
    const std::string* count = event.find("items");
    return count != nullptr && wildcardMatch(value, *count);
  }
  return key->find('*') != std::string::npos && anyItem(event, *key, value, false);
}

void EventHistory::add(const Event& event) {
  events_.push_back(event);
  if (events_.size() > kKept) {
    dropFirst();
  }
}

void EventHistory::forget(size_t before) {
  while (dropped_ < before && !events_.empty()) {
    dropFirst();
  }
}

void EventHistory::dropFirst() {
  Event& first = events_.front();
  latest_.insert_or_assign(first.name(), std::move(first));
  events_.pop_front();
  ++dropped_;
}

const Event* EventHistory::latest(std::string_view name) const {
  for (auto event = events_.rbegin(); event != events_.rend(); ++event) {
    if (event->name() == name) {
      return &*event;
    }
  }
  auto gone = latest_.find(name);
  return gone != latest_.end() ? &gone->second : nullptr;
}

size_t EventHistory::find(const EventQuery& query, size_t from) const {
  size_t position = from < dropped_ ? dropped_ : from;
  while (position < end() && !query.matches(at(position))) {
    ++position;
  }
  return position;
}

}  // namespace workbench
