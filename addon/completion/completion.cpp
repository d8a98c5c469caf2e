#include "addon/completion/completion.h"

#include <algorithm>

namespace kesto {

namespace {

constexpr std::string_view kPossible = "Possible :";
constexpr std::string_view kBetween = ", ";

// How far both agree.
std::size_t sharedSize(std::string_view left, std::string_view right) {
  const auto ends = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
  return static_cast<std::size_t>(ends.first - left.begin());
}

std::string listOf(const KeywordList& keywords, KeywordList::Range range) {
  std::string list(kPossible);
  for (int i = range.first; i <= range.last; ++i) {
    const std::string_view text = keywords.at(i).text();
    const std::string_view between = i == range.first ? std::string_view() : kBetween;
    if (list.size() + between.size() + text.size() > kStatusTextLimit) {
      break;
    }
    list += between;
    list += text;
  }
  return list;
}

}  // namespace

void Completion::load(FileSystem& files, const Tableau<String>& paths) {
  last_match_ = -1;
  keywords_.load(files, paths);
}

CompletionAnswer Completion::complete(std::string_view prefix) {
  const KeywordList::Range range = keywords_.beginningWith(prefix);
  if (range.last < range.first) {
    return {};
  }
  last_match_ = range.first;
  const std::string_view first = keywords_.at(range.first).text();
  if (range.first == range.last) {
    return {1, std::string(first.substr(prefix.size())), "Completion complete"};
  }
  // In a sorted list the outermost two agree on no more than all do.
  const std::size_t shared = sharedSize(first, keywords_.at(range.last).text());
  return {2, std::string(first.substr(0, shared).substr(prefix.size())), listOf(keywords_, range)};
}

CompletionStep Completion::strike(std::string_view word) {
  const CompletionAnswer answer = complete(word);
  if (answer.result == 0) {
    return {};
  }
  const std::string_view description = keywords_.at(last_match_).description();
  const bool again = answer.text.empty() && description == shown_description_;
  if (again && !description.empty()) {
    return {"", formattedAlone(description)};
  }
  shown_description_ = description;
  return {answer.text,
          answer.result == 1 && !answer.text.empty() ? "Completion done" : answer.status};
}

std::string formattedAlone(std::string_view format) {
  std::string text;
  for (std::size_t i = 0; i < format.size(); ++i) {
    text += format[i];
    if (format.substr(i, 2) == "%%") {
      ++i;
    }
  }
  return text;
}

}  // namespace kesto
