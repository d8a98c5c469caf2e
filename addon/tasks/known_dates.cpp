#include "addon/tasks/known_dates.h"

namespace kesto {

namespace {

constexpr std::size_t kPlaces = 4096;  // of ten years, a power of two

std::size_t placeOf(const TaskDate& date) {
  return ((std::size_t{date.year} * 12 + date.month) * 31 + date.day) % kPlaces;
}

}  // namespace

std::string KnownDates::shortDate(const TaskDate& date) const {
  if (days_.empty()) {
    days_.resize(kPlaces);
  }
  Day& day = days_[placeOf(date)];
  if (day.text.empty() || compareDays(day.date, date) != 0) {
    day = {date, format_.shortDate(date)};
  }
  return day.text;
}

}  // namespace kesto
