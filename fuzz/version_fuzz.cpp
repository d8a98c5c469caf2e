// Version resources. The first line of the input is the build number, the rest the text.
#include <cstdint>
#include <limits>
#include <string>

#include "addon/foundation/text_file.h"
#include "addon/rcgen/version_stamp.h"
#include "fuzz/fuzz.h"

namespace kesto {

namespace {

constexpr std::string_view kStatement = "FILEVERSION ";

std::int32_t buildNumber(std::string_view line) {
  std::uint32_t number = 0;
  for (const char c : line) {
    number = number * 31 + static_cast<unsigned char>(c);
  }
  return static_cast<std::int32_t>(number);
}

// Line by line: what is stamped, and what is copied as it is.
void checkLines(std::string_view text, std::string_view stamped) {
  TextLines lines(text, 255);
  for (std::string_view line; lines.next(line);) {
    FUZZ_CHECK(!stamped.empty());
    line = withoutLineEnd(line);
    const std::string_view written = takeLine(stamped);
    const bool is_value = line.starts_with("   VALUE \"FileVersion\", \"");
    FUZZ_CHECK(written == line || is_value || line.starts_with("FILEVERSION"));
    FUZZ_CHECK(!is_value || line.size() <= 25 || written.ends_with("\\000\\000\""));
  }
  FUZZ_CHECK(stamped.empty());
}

}  // namespace

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kesto;
  std::string_view rest = inputText(data, size);
  const std::int32_t first = buildNumber(takeLine(rest));
  std::string text(rest);
  takeTextMode(text);
  std::int32_t number = first;
  const std::string stamped = stampVersion(text, number);
  checkLines(text, stamped);
  // The number only rises, until it has to wrap.
  FUZZ_CHECK(number >= first || text.find("FILEVERSION") != std::string::npos);
  // What is stamped has a statement of the number, if it has any.
  std::int32_t next = nextNumber(number);
  const std::int32_t expected = next;
  stampVersion(stamped, next);
  FUZZ_CHECK(next == expected || stamped.find(kStatement) != std::string::npos);
  return 0;
}
