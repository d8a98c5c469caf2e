// A search over the files of a plan, read as the IDE holds them. One file is in
// memory at a time; one that cannot be read, or went away since it was listed, gives
// no hit.
#pragma once

#include <string>
#include <vector>

#include "addon/foundation/folders.h"
#include "addon/foundation/tableau.h"
#include "addon/navigation/name_matchers.h"
#include "addon/navigation/quick_resu.h"
#include "addon/navigation/search_plan.h"

namespace kesto {

struct FirstHit {
  std::string file;
  int line = 0;  // from 1
};

// Stops at the first hit; false when there is none, and hit is untouched. The watch may
// end the search before that.
bool findFirst(const std::vector<SearchStep>& plan, bool recurse, const NameMatcher& matcher,
               FirstHit& hit, WalkWatch* watch = nullptr);

// Bytes of hits that are collected; the IDE's process has to hold them all.
inline constexpr size_t kHitBytesLimit = size_t{64} << 20;

// Replaces hits by all of the plan's, in the order found. The search ends early when
// they would take more than kHitBytesLimit, or when the watch ends it.
void collectHits(const std::vector<SearchStep>& plan, bool recurse, const NameMatcher& matcher,
                 Tableau<QuickResu>& hits, WalkWatch* watch = nullptr);

}  // namespace kesto
