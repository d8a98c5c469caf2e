#include "addon/tasks/task_order.h"

#include <cstring>

namespace kesto {

namespace {

enum class Key { kState, kStart, kEnd, kPriority, kType, kName };

constexpr Key kOrders[kTaskOrders][6] = {
    {Key::kState, Key::kStart, Key::kEnd, Key::kPriority, Key::kType, Key::kName},
    {Key::kStart, Key::kState, Key::kEnd, Key::kPriority, Key::kType, Key::kName},
    {Key::kEnd, Key::kState, Key::kStart, Key::kPriority, Key::kType, Key::kName},
    {Key::kPriority, Key::kState, Key::kStart, Key::kEnd, Key::kType, Key::kName},
    {Key::kType, Key::kState, Key::kStart, Key::kEnd, Key::kPriority, Key::kName}};

int compareNumbers(std::int32_t left, std::int32_t right) {
  return (left > right) - (left < right);
}

int compareKey(Key key, const Task& left, const Task& right) {
  switch (key) {
    case Key::kState:
      return compareNumbers(left.state, right.state);
    case Key::kStart:
      return compareDays(left.start, right.start);
    case Key::kEnd:
      return compareDays(left.end, right.end);
    case Key::kPriority:
      return compareNumbers(left.priority, right.priority);
    case Key::kType:
      return strcmp(left.type.text(), right.type.text());
    case Key::kName:
      break;
  }
  return strcmp(left.name.text(), right.name.text());
}

int compareInOrder(int order, const Task& left, const Task& right) {
  for (const Key key : kOrders[order]) {
    if (const int difference = compareKey(key, left, right); difference != 0) {
      return difference;
    }
  }
  return 0;
}

// The sort of the tables takes no more than a function.
template <int order>
int forward(const Task& left, const Task& right) {
  return compareInOrder(order, left, right);
}

template <int order>
int backward(const Task& left, const Task& right) {
  return compareInOrder(order, right, left);
}

template <int order>
void sortBy(Tableau<Task>& tasks, bool reverse) {
  if (reverse) {
    tasks.sortWith<backward<order>>();
  } else {
    tasks.sortWith<forward<order>>();
  }
}

constexpr void (*kSorts[kTaskOrders])(Tableau<Task>&, bool) = {sortBy<0>, sortBy<1>, sortBy<2>,
                                                               sortBy<3>, sortBy<4>};

}  // namespace

void sortTasks(Tableau<Task>& tasks, int order, bool reverse) {
  kSorts[order](tasks, reverse);
}

}  // namespace kesto
