#include "addon/tasks/system_dates.h"

#include <windows.h>

#include <bit>

namespace kesto {

namespace {

constexpr std::size_t kLongDateLimit = 70;

std::string formatDate(const TaskDate& date, DWORD format) {
  const auto time = std::bit_cast<SYSTEMTIME>(date);
  char text[256] = "";
  const int size = GetDateFormatA(LOCALE_USER_DEFAULT, format, &time, nullptr, text, sizeof text);
  return size > 0 ? text : "";
}

}  // namespace

TaskDate localNow() {
  SYSTEMTIME time = {};
  GetLocalTime(&time);
  return std::bit_cast<TaskDate>(time);
}

TaskDate utcNow() {
  SYSTEMTIME time = {};
  GetSystemTime(&time);
  return std::bit_cast<TaskDate>(time);
}

std::string longDate(const TaskDate& date) {
  return formatDate(date, DATE_LONGDATE).substr(0, kLongDateLimit);
}

std::string SystemDateFormat::shortDate(const TaskDate& date) const {
  return formatDate(date, DATE_SHORTDATE);
}

}  // namespace kesto
