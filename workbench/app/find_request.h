// What the user last asked to find and to put in its place. Plain values.
#pragma once

#include <cstddef>
#include <string>

#include "workbench/app/recent_texts.h"
#include "workbench/editor/text_search.h"

namespace workbench {

inline constexpr std::size_t kMostSearched = 20;

struct FindRequest {
  TextSearch search;
  bool backward = false;
  std::string replacement;
  RecentTexts searched{kMostSearched, sameText};
  RecentTexts replaced{kMostSearched, sameText};
};

}  // namespace workbench
