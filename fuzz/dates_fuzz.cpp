// Typed dates, next to the standard library's reading of the same pattern.
// fuzz: -max_len=128
#include <cstdio>
#include <string>

#include "addon/tasks/task_date.h"
#include "fuzz/fuzz.h"

namespace kesto {

namespace {

// More digits than these may be beyond what the library can tell.
bool hasLongNumber(std::string_view text) {
  int digits = 0;
  for (const char c : text) {
    digits = c >= '0' && c <= '9' ? digits + 1 : 0;
    if (digits > 9) {
      return true;
    }
  }
  return false;
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  const std::string text(upToZero(inputText(data, size)));
  const TaskDate now = {2026, 8, 1, 24, 12, 30, 59, 999};
  const TaskDate day_first = readTypedDate(text, true, now);
  const TaskDate month_first = readTypedDate(text, false, now);
  const std::string read = text.substr(0, kDateTextLimit);
  FUZZ_CHECK(readTypedDate(read, true, now) == day_first);
  FUZZ_CHECK(day_first.year == now.year || (day_first.year > 1800 && day_first.year < 2000));
  if (hasLongNumber(text)) {
    return 0;
  }
  int first = 0;
  int second = 0;
  int year = 0;
  const int count = sscanf(read.c_str(), "%d/%d/%d", &first, &second, &year);
  TaskDate expected[] = {now, now};
  if (count >= 1) {
    expected[0].day = static_cast<std::uint16_t>(first);
    expected[1].month = static_cast<std::uint16_t>(first);
  }
  if (count >= 2) {
    expected[0].month = static_cast<std::uint16_t>(second);
    expected[1].day = static_cast<std::uint16_t>(second);
  }
  if (count == 3) {
    expected[0].year = expected[1].year = static_cast<std::uint16_t>(1900 + year % 100);
  }
  FUZZ_CHECK(day_first == expected[0] && month_first == expected[1]);
  return 0;
}
