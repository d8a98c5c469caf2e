#include "addon/navigation/name_search.h"

#include <cstring>

#include "addon/foundation/directory_listing.h"
#include "addon/foundation/directory_walk.h"
#include "addon/ide/file_text.h"

namespace kesto {
namespace {

class FirstHitVisitor : public FileVisitor {
 public:
  FirstHitVisitor(const NameMatcher& matcher, FirstHit& hit) : matcher_(matcher), hit_(hit) {}
  bool visit(const char* path) override {
    const FileText text = readFileText(path);
    LineReader reader(text.view());
    std::string_view shown;
    if (!matcher_.findNext(reader, shown)) {
      return false;
    }
    hit_ = {path, reader.number()};
    found_ = true;
    return true;
  }
  bool found() const { return found_; }

 private:
  const NameMatcher& matcher_;
  FirstHit& hit_;
  bool found_ = false;
};

class CollectingVisitor : public FileVisitor {
 public:
  CollectingVisitor(const NameMatcher& matcher, Tableau<QuickResu>& hits)
      : matcher_(matcher), hits_(hits) {}
  bool visit(const char* path) override {
    const FileText text = readFileText(path);
    LineReader reader(text.view());
    std::string_view shown;
    while (matcher_.findNext(reader, shown)) {
      const size_t bytes = sizeof(QuickResu) + strlen(path) + shown.size();
      if (bytes > bytes_left_) {
        return true;
      }
      bytes_left_ -= bytes;
      hits_.append(new QuickResu(reader.number(), path, shown));
    }
    return false;
  }

 private:
  const NameMatcher& matcher_;
  Tableau<QuickResu>& hits_;
  size_t bytes_left_ = kHitBytesLimit;
};

void walkPlan(const std::vector<SearchStep>& plan, bool recurse, FileVisitor& visitor,
              WalkWatch* watch) {
  DirectoryListing listing;
  Folders folders(listing, watch);
  for (const SearchStep& step : plan) {
    if (walkDirectory(folders, step.directory, step.mask, recurse, visitor)) {
      return;
    }
  }
}

}  // namespace

bool findFirst(const std::vector<SearchStep>& plan, bool recurse, const NameMatcher& matcher,
               FirstHit& hit, WalkWatch* watch) {
  FirstHitVisitor visitor(matcher, hit);
  walkPlan(plan, recurse, visitor, watch);
  return visitor.found();
}

void collectHits(const std::vector<SearchStep>& plan, bool recurse, const NameMatcher& matcher,
                 Tableau<QuickResu>& hits, WalkWatch* watch) {
  constexpr int kStep = 256;
  hits.clear();
  hits.setStep(kStep);
  CollectingVisitor visitor(matcher, hits);
  walkPlan(plan, recurse, visitor, watch);
}

}  // namespace kesto
