// The days of tasks: how they compare, when one lies between two others, and what a typed
// text means. What today is and how a day is written come in from outside. Plain values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kesto {

// The eight words of a SYSTEMTIME, in its order. Only year, month and day count.
struct TaskDate {
  std::uint16_t year = 0;
  std::uint16_t month = 0;
  std::uint16_t day_of_week = 0;
  std::uint16_t day = 0;
  std::uint16_t hour = 0;
  std::uint16_t minute = 0;
  std::uint16_t second = 0;
  std::uint16_t milliseconds = 0;

  friend bool operator==(const TaskDate&, const TaskDate&) = default;
};

// How the user has days written.
class DateFormat {
 public:
  virtual ~DateFormat() = default;
  // Empty for a day that there is not.
  virtual std::string shortDate(const TaskDate& date) const = 0;
};

// By year, month and day: below 0, 0 or above 0.
inline int compareDays(const TaskDate& left, const TaskDate& right) {
  const int years = left.year - right.year;
  const int months = left.month - right.month;
  return years != 0 ? years : months != 0 ? months : left.day - right.day;
}

// Whether left is not after right within a year: by month and day alone, so that a stretch
// of days comes round every year, and one over the turn of a year holds none.
bool isNotAfterInYear(const TaskDate& left, const TaskDate& right);

// Whether the user writes the day before the month.
bool isDayFirst(const DateFormat& format);

// Characters of a typed date that are read at most.
inline constexpr int kDateTextLimit = 79;

// The date of a text such as 12/31/95 in the user's order. What is not typed stays as in
// now; a typed year counts within the twentieth century by its last two digits, and no
// number is judged: one beyond an int counts as the greatest, and words keep its low bits.
TaskDate readTypedDate(std::string_view text, bool day_first, const TaskDate& now);

}  // namespace kesto
