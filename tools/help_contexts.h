// The table of context numbers of a WinHelp file (".hlp"), which the generator of the file
// leaves empty: filled here, from numbers and the words by which the pages call their topics.
// Plain functions from bytes to bytes.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kesto {

struct HelpContext {
  std::uint32_t number;
  std::string_view word;  // letters without regard to case, digits, "." and "_"
};

// Under this number a word stands in the file; 0 when no word can be like that.
std::uint32_t helpWordHash(std::string_view word);

// Gives help, a whole file, the table for these numbers, which ascend, and takes out the
// day on which it was made. Returns what is wrong with either, empty when all went well;
// help is as it was then.
std::string fillHelpContexts(std::string& help, std::span<const HelpContext> contexts);

}  // namespace kesto
