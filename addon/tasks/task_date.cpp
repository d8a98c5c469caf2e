#include "addon/tasks/task_date.h"

#include <algorithm>
#include <climits>

namespace kesto {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

// A number as "%d" reads it, taken off the text. False when there is none.
bool takeNumber(std::string_view& text, int& number) {
  while (!text.empty() && isBlank(text.front())) {
    text.remove_prefix(1);
  }
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  if (text.empty() || !isDigit(text.front())) {
    return false;
  }
  std::int64_t value = 0;
  for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1)) {
    value = std::min<std::int64_t>(value * 10 + (text.front() - '0'), INT_MAX);
  }
  number = static_cast<int>(negative ? -value : value);
  return true;
}

bool takeSlash(std::string_view& text) {
  const bool there = text.starts_with('/');
  text.remove_prefix(there ? 1 : 0);
  return there;
}

}  // namespace

bool isNotAfterInYear(const TaskDate& left, const TaskDate& right) {
  return left.month < right.month || (left.month == right.month && left.day <= right.day);
}

bool isDayFirst(const DateFormat& format) {
  TaskDate sample;
  sample.year = 1996;
  sample.month = 11;
  sample.day_of_week = 5;
  sample.day = 22;
  return format.shortDate(sample).starts_with('2');
}

TaskDate readTypedDate(std::string_view text, bool day_first, const TaskDate& now) {
  TaskDate date = now;
  text = text.substr(0, kDateTextLimit);
  int number = 0;
  if (!takeNumber(text, number)) {
    return date;
  }
  (day_first ? date.day : date.month) = static_cast<std::uint16_t>(number);
  if (!takeSlash(text) || !takeNumber(text, number)) {
    return date;
  }
  (day_first ? date.month : date.day) = static_cast<std::uint16_t>(number);
  if (!takeSlash(text) || !takeNumber(text, number)) {
    return date;
  }
  date.year = static_cast<std::uint16_t>(1900 + number % 100);
  return date;
}

}  // namespace kesto
