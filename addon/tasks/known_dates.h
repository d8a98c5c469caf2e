// Days as texts, each asked for once: the rows of a long list are mostly of the same days.
// User-interface thread only.
#pragma once

#include <map>
#include <string>

#include "addon/tasks/task_date.h"

namespace kesto {

class KnownDates : public DateFormat {
 public:
  // The format must outlive this.
  explicit KnownDates(const DateFormat& format) : format_(format) {}

  std::string shortDate(const TaskDate& date) const override;
  // The user may write days another way by now.
  void forget() { texts_.clear(); }

 private:
  const DateFormat& format_;
  mutable std::map<std::uint64_t, std::string> texts_;
};

}  // namespace kesto
