// Days for the tests, and a user who has them written as day.month.year.
#pragma once

#include <string>

#include "addon/tasks/task_date.h"

namespace kesto {

inline TaskDate day(int year, int month, int day_of_month) {
  TaskDate date;
  date.year = static_cast<std::uint16_t>(year);
  date.month = static_cast<std::uint16_t>(month);
  date.day = static_cast<std::uint16_t>(day_of_month);
  return date;
}

class DottedDays : public DateFormat {
 public:
  std::string shortDate(const TaskDate& date) const override {
    return std::to_string(date.day) + '.' + std::to_string(date.month) + '.' +
           std::to_string(date.year);
  }
};

}  // namespace kesto
