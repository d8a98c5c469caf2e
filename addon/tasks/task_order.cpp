#include "addon/tasks/task_order.h"

namespace kesto {

namespace {

enum class Key { kState, kStart, kEnd, kPriority, kType, kName };

int compareNumbers(std::int32_t left, std::int32_t right) {
  return (left > right) - (left < right);
}

// As strcmp, a call to which takes longer than most texts take to differ.
int compareTexts(const char* left, const char* right) {
  while (*left == *right && *left != 0) {
    ++left;
    ++right;
  }
  return static_cast<unsigned char>(*left) - static_cast<unsigned char>(*right);
}

template <Key key>
int compareKey(const Task& left, const Task& right) {
  if constexpr (key == Key::kState) {
    return compareNumbers(left.state, right.state);
  } else if constexpr (key == Key::kStart) {
    return compareDays(left.start, right.start);
  } else if constexpr (key == Key::kEnd) {
    return compareDays(left.end, right.end);
  } else if constexpr (key == Key::kPriority) {
    return compareNumbers(left.priority, right.priority);
  } else if constexpr (key == Key::kType) {
    return compareTexts(left.type.text(), right.type.text());
  } else {
    return compareTexts(left.name.text(), right.name.text());
  }
}

// By one key after the other, until they differ.
template <Key... keys>
int forward(const Task& left, const Task& right) {
  int difference = 0;
  static_cast<void>((((difference = compareKey<keys>(left, right)) != 0) || ...));
  return difference;
}

template <Key... keys>
int backward(const Task& left, const Task& right) {
  return forward<keys...>(right, left);
}

// The sort of the tables takes a function that knows nothing else.
template <Key... keys>
void sortBy(Tableau<Task>& tasks, bool reverse) {
  if (reverse) {
    tasks.sortWith<backward<keys...>>();
  } else {
    tasks.sortWith<forward<keys...>>();
  }
}

using enum Key;
constexpr void (*kSorts[kTaskOrders])(Tableau<Task>&, bool) = {
    sortBy<kState, kStart, kEnd, kPriority, kType, kName>,
    sortBy<kStart, kState, kEnd, kPriority, kType, kName>,
    sortBy<kEnd, kState, kStart, kPriority, kType, kName>,
    sortBy<kPriority, kState, kStart, kEnd, kType, kName>,
    sortBy<kType, kState, kStart, kEnd, kPriority, kName>};

}  // namespace

void sortTasks(Tableau<Task>& tasks, int order, bool reverse) {
  kSorts[order](tasks, reverse);
}

}  // namespace kesto
