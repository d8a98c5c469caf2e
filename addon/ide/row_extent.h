// How wide the rows of a list with tab stops are, without asking the system about each.
// Plain; any thread. In pixels.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace kesto {

struct RowMetrics {
  std::array<int, 256> widths;  // of the characters, which no text makes narrower or wider
  std::span<const int> stops;   // ascending, from the row's start
  int further;                  // from one stop to the next behind the last of them
};

// Where the row's text ends: a tab goes on at the next stop behind what it follows.
int rowExtent(std::string_view row, const RowMetrics& metrics);

}  // namespace kesto
