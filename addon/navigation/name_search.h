// A search over the files of a plan. One file is in memory at a time; one that cannot be
// read, or went away since it was listed, gives no hit. Any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "addon/foundation/folders.h"
#include "addon/foundation/tableau.h"
#include "addon/navigation/name_matchers.h"
#include "addon/navigation/quick_resu.h"
#include "addon/navigation/search_plan.h"

namespace kesto {

class SourceTexts {
 public:
  virtual ~SourceTexts() = default;
  // The file's text, which lives until the next call; empty when it cannot be read.
  virtual std::string_view textOf(const char* path) = 0;
};

// What is searched; both must outlive the search.
struct SearchedFiles {
  DirectoryLister& lister;
  SourceTexts& texts;
};

// Takes the hits of a search as they are found.
class HitListener {
 public:
  virtual ~HitListener() = default;
  // The line counts from 1; the texts live for the call. False ends the search.
  virtual bool hit(const char* file, int line, std::string_view text) = 0;
};

// The watch may end the search before its end.
void findAll(const SearchedFiles& files, const std::vector<SearchStep>& plan, bool recurse,
             const NameMatcher& matcher, HitListener& listener, WalkWatch* watch = nullptr);

struct FirstHit {
  std::string file;
  int line = 0;  // from 1
  std::string text;
};

// Stops at the first hit; false when there is none, and hit is untouched.
bool findFirst(const SearchedFiles& files, const std::vector<SearchStep>& plan, bool recurse,
               const NameMatcher& matcher, FirstHit& hit, WalkWatch* watch = nullptr);

// Bytes of hits that are collected; the IDE's process has to hold them all.
inline constexpr size_t kHitBytesLimit = size_t{64} << 20;

// Replaces hits by all of the plan's, in the order found. The search ends early when
// they would take more than kHitBytesLimit.
void collectHits(const SearchedFiles& files, const std::vector<SearchStep>& plan, bool recurse,
                 const NameMatcher& matcher, Tableau<QuickResu>& hits, WalkWatch* watch = nullptr);

}  // namespace kesto
