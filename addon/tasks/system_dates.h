// The system's clock and how the user has days written. User-interface thread only.
#pragma once

#include <string>

#include "addon/tasks/task_date.h"

namespace kesto {

TaskDate localNow();
TaskDate utcNow();

// In the user's long format, cut at 70 characters.
std::string longDate(const TaskDate& date);

class SystemDateFormat : public DateFormat {
 public:
  std::string shortDate(const TaskDate& date) const override;
};

}  // namespace kesto
