// The orders in which the view of the tasks can stand. Plain; any thread.
#pragma once

#include "addon/foundation/tableau.h"
#include "addon/tasks/task.h"

namespace kesto {

inline constexpr int kTaskOrders = 5;  // by state, start date, end date, priority, type
inline constexpr int kDefaultTaskOrder = 1;

// Tasks that are alike in all that is compared stand in any order.
void sortTasks(Tableau<Task>& tasks, int order, bool reverse);

}  // namespace kesto
