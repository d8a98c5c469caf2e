#include "addon/completion/keyword_list.h"

#include <algorithm>

#include "addon/completion/keyword_order.h"
#include "addon/foundation/text_file.h"

namespace kesto {

namespace {

constexpr char kSeparator = '|';
constexpr char kHeading = '[';
// Characters below are cut off a line's end; blanks stay.
constexpr unsigned char kFirstKept = 14;
// Of a usual line, to begin with.
constexpr std::size_t kUsualLine = 24;

static_assert(kKeywordLineSize <= UINT16_MAX);

std::string_view withoutEnd(std::string_view line) {
  while (!line.empty() && static_cast<unsigned char>(line.back()) < kFirstKept) {
    line.remove_suffix(1);
  }
  return line;
}

}  // namespace

Keyword::Keyword(std::string_view line) : line_(line.data()) {
  const std::size_t end = std::min(line.find(kSeparator), line.size());
  const std::size_t description = std::min(end + 1, line.size());
  text_size_ = static_cast<std::uint16_t>(end);
  description_at_ = static_cast<std::uint16_t>(description);
  description_size_ = static_cast<std::uint16_t>(line.size() - description);
}

void readKeywords(std::string_view file, std::vector<Keyword>& keywords) {
  TextLines lines(file, kKeywordLineSize);
  for (std::string_view line; lines.next(line) && keywords.size() < kKeywordLimit;) {
    line = withoutEnd(line);
    if (!line.empty() && line.front() != kHeading) {
      keywords.emplace_back(line);
    }
  }
}

void KeywordList::load(FileSystem& files, const Tableau<String>& paths) {
  sorted_.clear();
  keywords_.clear();
  texts_.clear();
  // A text that moved would leave its keywords behind.
  texts_.resize(static_cast<std::size_t>(paths.count()));
  std::size_t size = 0;
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    std::string& text = texts_[i];
    if (!files.read(*paths.at(static_cast<int>(i)), text) ||
        text.size() > kKeywordTextLimit - size) {
      text = std::string();
    }
    size += text.size();
  }
  keywords_.reserve(std::min(size / kUsualLine, kKeywordLimit));
  for (const std::string& text : texts_) {
    readKeywords(text, keywords_);
  }
  sortKeywords(keywords_, sorted_);
}

KeywordList::Range KeywordList::beginningWith(std::string_view prefix) const {
  // The first position from which a keyword's beginning is not before the prefix, or,
  // where equal ones count as before it, is after it.
  const auto bound = [this, prefix](int from, int equal_before) {
    int to = count();
    while (from < to) {
      const int middle = from + (to - from) / 2;
      if (at(middle).text().substr(0, prefix.size()).compare(prefix) < equal_before) {
        from = middle + 1;
      } else {
        to = middle;
      }
    }
    return from;
  };
  const int first = bound(0, 0);
  return {first, bound(first, 1) - 1};
}

}  // namespace kesto
