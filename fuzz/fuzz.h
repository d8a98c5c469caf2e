// What the fuzz programs share: checks whose breach is a finding, and the input cut
// into parts. Plain code, one thread.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace kesto {

// Says which check failed and aborts.
[[noreturn]] void breach(const char* condition, const char* file, int line);

inline std::string_view inputText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Takes the first line off the rest; its line feed goes as well.
inline std::string_view takeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return line;
}

inline std::string_view upToZero(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

// Whether part lies within whole: the same memory, not only the same characters.
inline bool isWithin(std::string_view part, std::string_view whole) {
  return part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size();
}

}  // namespace kesto

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

#define FUZZ_CHECK(condition) \
  ((condition) ? void() : ::kesto::breach(#condition, __FILE_NAME__, __LINE__))
