#include "workbench/editor/text_search.h"

#include <algorithm>

#include "workbench/editor/text_layout.h"

namespace workbench {
namespace {

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

std::string prepared(std::string_view text, bool match_case) {
  std::string result(text);
  if (!match_case) {
    std::transform(result.begin(), result.end(), result.begin(), lower);
  }
  return result;
}

}  // namespace

LineMatcher::LineMatcher(const TextSearch& search)
    : wanted_(prepared(search.text, search.match_case)),
      match_case_(search.match_case),
      whole_word_(search.whole_word) {}

bool LineMatcher::possible() const {
  return !wanted_.empty() && wanted_.find_first_of("\r\n") == std::string::npos;
}

void LineMatcher::take(std::string_view line) {
  line_ = prepared(line, match_case_);
}

// An end that is no part of a word needs no edge.
bool LineMatcher::stands(std::size_t at) const {
  if (!whole_word_) {
    return true;
  }
  const std::size_t end = at + wanted_.size();
  const bool joined_before = at > 0 && isWordByte(line_[at - 1]) && isWordByte(wanted_.front());
  const bool joined_after =
      end < line_.size() && isWordByte(line_[end]) && isWordByte(wanted_.back());
  return !joined_before && !joined_after;
}

std::size_t LineMatcher::first(std::size_t from) const {
  std::size_t at = line_.find(wanted_, from);
  while (at != kNone && !stands(at)) {
    at = line_.find(wanted_, at + 1);
  }
  return at;
}

std::size_t LineMatcher::last(std::size_t end) const {
  if (end < wanted_.size()) {
    return kNone;
  }
  std::size_t at = line_.rfind(wanted_, end - wanted_.size());
  while (at != kNone && !stands(at)) {
    at = at > 0 ? line_.rfind(wanted_, at - 1) : kNone;
  }
  return at;
}

}  // namespace workbench
