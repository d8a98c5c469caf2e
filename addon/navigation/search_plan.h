// Where a search walks: pairs of a directory and a mask, in order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "addon/navigation/name_matchers.h"

namespace kesto {

// The masks where nothing else is set.
inline constexpr char kSourceMasks[] = "*.cpp;*.cc;*.c";
inline constexpr char kHeaderMasks[] = "*.h;*.rh";

struct SearchPlaces {
  std::string_view project_directory;  // the current directory without a project
  bool project_open;
  // ";" lists. The paths count only while a project is open.
  std::string_view source_path;
  std::string_view include_path;
  std::string_view function_mask;
  std::string_view include_mask;
};

struct SearchStep {
  std::string directory;
  std::string mask;
};

// An empty entry ends a list of directories or masks.
std::vector<SearchStep> planSearch(Search search, const SearchPlaces& places);

}  // namespace kesto
