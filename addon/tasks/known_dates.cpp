#include "addon/tasks/known_dates.h"

namespace kesto {

std::string KnownDates::shortDate(const TaskDate& date) const {
  const std::uint64_t day =
      (std::uint64_t{date.year} << 32) | (std::uint64_t{date.month} << 16) | date.day;
  const auto [entry, is_new] = texts_.try_emplace(day);
  if (is_new) {
    entry->second = format_.shortDate(date);
  }
  return entry->second;
}

}  // namespace kesto
