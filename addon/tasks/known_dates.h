// Days as texts, those of late without asking again: the rows of a long list are mostly of
// the same days. User-interface thread only.
#pragma once

#include <string>
#include <vector>

#include "addon/tasks/task_date.h"

namespace kesto {

class KnownDates : public DateFormat {
 public:
  // The format must outlive this.
  explicit KnownDates(const DateFormat& format) : format_(format) {}

  std::string shortDate(const TaskDate& date) const override;
  // The user may write days another way by now.
  void forget() { days_.clear(); }

 private:
  struct Day {
    TaskDate date;
    std::string text;
  };

  const DateFormat& format_;
  mutable std::vector<Day> days_;  // each at the one place for days such as it
};

}  // namespace kesto
