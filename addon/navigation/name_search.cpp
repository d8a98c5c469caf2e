#include "addon/navigation/name_search.h"

#include <cstring>

#include "addon/foundation/directory_walk.h"

namespace kesto {
namespace {

class SearchVisitor : public FileVisitor {
 public:
  SearchVisitor(SourceTexts& texts, const NameMatcher& matcher, HitListener& listener)
      : texts_(texts), matcher_(matcher), listener_(listener) {}
  bool visit(const char* path) override {
    LineReader reader(texts_.textOf(path));
    std::string_view shown;
    while (matcher_.findNext(reader, shown)) {
      if (!listener_.hit(path, reader.number(), shown)) {
        return true;
      }
    }
    return false;
  }

 private:
  SourceTexts& texts_;
  const NameMatcher& matcher_;
  HitListener& listener_;
};

class FirstHitListener : public HitListener {
 public:
  explicit FirstHitListener(FirstHit& first) : first_(first) {}
  bool hit(const char* file, int line, std::string_view text) override {
    first_ = {file, line, std::string(text)};
    found_ = true;
    return false;
  }
  bool found() const { return found_; }

 private:
  FirstHit& first_;
  bool found_ = false;
};

class CollectingListener : public HitListener {
 public:
  explicit CollectingListener(Tableau<QuickResu>& hits) : hits_(hits) {}
  bool hit(const char* file, int line, std::string_view text) override {
    const size_t bytes = sizeof(QuickResu) + strlen(file) + text.size();
    if (bytes > bytes_left_) {
      return false;
    }
    bytes_left_ -= bytes;
    hits_.append(new QuickResu(line, file, text));
    return true;
  }

 private:
  Tableau<QuickResu>& hits_;
  size_t bytes_left_ = kHitBytesLimit;
};

}  // namespace

void findAll(const SearchedFiles& files, const std::vector<SearchStep>& plan, bool recurse,
             const NameMatcher& matcher, HitListener& listener, WalkWatch* watch) {
  Folders folders(files.lister, watch);
  SearchVisitor visitor(files.texts, matcher, listener);
  for (const SearchStep& step : plan) {
    if (walkDirectory(folders, step.directory, step.mask, recurse, visitor)) {
      return;
    }
  }
}

bool findFirst(const SearchedFiles& files, const std::vector<SearchStep>& plan, bool recurse,
               const NameMatcher& matcher, FirstHit& hit, WalkWatch* watch) {
  FirstHitListener listener(hit);
  findAll(files, plan, recurse, matcher, listener, watch);
  return listener.found();
}

void collectHits(const SearchedFiles& files, const std::vector<SearchStep>& plan, bool recurse,
                 const NameMatcher& matcher, Tableau<QuickResu>& hits, WalkWatch* watch) {
  constexpr int kStep = 256;
  hits.clear();
  hits.setStep(kStep);
  CollectingListener listener(hits);
  findAll(files, plan, recurse, matcher, listener, watch);
}

}  // namespace kesto
