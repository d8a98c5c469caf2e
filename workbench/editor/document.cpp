#include "workbench/editor/document.h"

#include <algorithm>
#include <utility>

namespace workbench {
namespace {

constexpr std::size_t kNever = static_cast<std::size_t>(-1);

std::size_t at(int index) {
  return static_cast<std::size_t>(index);
}

std::string_view endBytes(LineEnd end) {
  switch (end) {
    case LineEnd::kCr:
      return "\r";
    case LineEnd::kLf:
      return "\n";
    case LineEnd::kCrLf:
      return "\r\n";
    case LineEnd::kNone:
      break;
  }
  return {};
}

LineEnd mostCommonEnd(const std::vector<TextLine>& lines) {
  std::size_t counts[4] = {};
  for (const TextLine& line : lines) {
    ++counts[static_cast<std::size_t>(line.end)];
  }
  // CR LF wins a tie, then LF: what most tools write.
  LineEnd best = LineEnd::kCrLf;
  for (const LineEnd end : {LineEnd::kLf, LineEnd::kCr}) {
    if (counts[static_cast<std::size_t>(end)] > counts[static_cast<std::size_t>(best)]) {
      best = end;
    }
  }
  return best;
}

}  // namespace

Document::Document() : lines_(1) {}

Fragment Document::split(std::string_view text, LineEnd all_ends) {
  Fragment lines;
  std::size_t start = 0;
  while (true) {
    const std::size_t stop = text.find_first_of("\r\n", start);
    if (stop == std::string_view::npos) {
      lines.push_back({std::string(text.substr(start)), LineEnd::kNone});
      return lines;
    }
    LineEnd end = text[stop] == '\n' ? LineEnd::kLf : LineEnd::kCr;
    std::size_t next = stop + 1;
    if (end == LineEnd::kCr && next < text.size() && text[next] == '\n') {
      end = LineEnd::kCrLf;
      ++next;
    }
    lines.push_back({std::string(text.substr(start, stop - start)),
                     all_ends == LineEnd::kNone ? end : all_ends});
    start = next;
  }
}

std::string_view Document::takeForm(std::string_view bytes) {
  form_ = {encodingOf(bytes), bytes.starts_with(kUtf8Mark)};
  return bytes.substr(form_.marked ? kUtf8Mark.size() : 0);
}

bool Document::becomeUtf8() {
  const bool plain = std::all_of(lines_.begin(), lines_.end(),
                                 [](const TextLine& each) { return isAscii(each.text); });
  if (plain) {
    form_.encoding = Encoding::kUtf8;
  }
  return form_.encoding == Encoding::kUtf8;
}

void Document::load(std::string_view bytes) {
  const bool was_modified = modified();
  const Place old_end = endPlace();
  lines_ = split(takeForm(bytes), LineEnd::kNone);
  prevailing_ = mostCommonEnd(lines_);
  steps_.clear();
  position_ = 0;
  saved_ = 0;
  step_open_ = false;
  run_ = Edit::kSingle;
  notify({{0, 0}, old_end, endPlace()});
  notifyState(was_modified);
}

DocumentChange Document::renew(std::string_view bytes) {
  const TextForm old_form = form_;
  const Fragment wanted = split(takeForm(bytes), LineEnd::kNone);
  const auto differ = [](const TextLine& a, const TextLine& b) {
    return a.end != b.end || a.text != b.text;
  };
  // One line at least is left between what is the same before and after.
  const std::size_t most = std::min(wanted.size(), lines_.size()) - 1;
  std::size_t before = 0;
  while (before < most && !differ(wanted[before], lines_[before])) {
    ++before;
  }
  std::size_t after = 0;
  while (after < most - before &&
         !differ(wanted[wanted.size() - 1 - after], lines_[lines_.size() - 1 - after])) {
    ++after;
  }
  std::size_t old_last = lines_.size() - 1 - after;
  std::size_t new_last = wanted.size() - 1 - after;
  if (after > 0 && lines_[old_last].end != wanted[new_last].end) {
    // A change has no say over the end of its last line.
    ++old_last;
    ++new_last;
  }
  if (old_last == before && new_last == before && lines_[before].text == wanted[before].text &&
      form_ == old_form) {
    return {};
  }
  const Place from = {static_cast<int>(before), 0};
  const Place to = {static_cast<int>(old_last), static_cast<int>(lines_[old_last].text.size())};
  Fragment added(wanted.begin() + static_cast<std::ptrdiff_t>(before),
                 wanted.begin() + static_cast<std::ptrdiff_t>(new_last) + 1);
  added.back().end = LineEnd::kNone;
  const DocumentChange result = {from, to, endOf(from, added)};
  Change change = {from, copy(from, to), std::move(added), true, old_form, form_};
  replace(change.at, change.removed, change.added);
  record(std::move(change), Edit::kSingle);
  prevailing_ = mostCommonEnd(lines_);
  return result;
}

std::string Document::bytes() const {
  return std::string(form_.marked ? kUtf8Mark : "") + textBetween({0, 0}, endPlace());
}

Place Document::endPlace() const {
  return {lineCount() - 1, static_cast<int>(lines_.back().text.size())};
}

Place Document::clamp(Place place) const {
  if (place.line < 0) {
    return {0, 0};
  }
  if (place.line >= lineCount()) {
    return endPlace();
  }
  const int length = static_cast<int>(line(place.line).size());
  return {place.line, std::clamp(place.column, 0, length)};
}

std::string Document::textBetween(Place from, Place to) const {
  from = clamp(from);
  to = clamp(to);
  if (to < from) {
    std::swap(from, to);
  }
  if (from.line == to.line) {
    return line(from.line).substr(at(from.column), at(to.column - from.column));
  }
  std::string result = line(from.line).substr(at(from.column));
  result += endBytes(lineEnd(from.line));
  for (int i = from.line + 1; i < to.line; ++i) {
    result += line(i);
    result += endBytes(lineEnd(i));
  }
  result.append(line(to.line), 0, at(to.column));
  return result;
}

Place Document::endOf(Place start, const Fragment& fragment) {
  const int last = static_cast<int>(fragment.back().text.size());
  if (fragment.size() == 1) {
    return {start.line, start.column + last};
  }
  return {start.line + static_cast<int>(fragment.size()) - 1, last};
}

Fragment Document::copy(Place from, Place to) const {
  if (from.line == to.line) {
    return {{line(from.line).substr(at(from.column), at(to.column - from.column)), LineEnd::kNone}};
  }
  Fragment result;
  result.push_back({line(from.line).substr(at(from.column)), lineEnd(from.line)});
  result.insert(result.end(), lines_.begin() + from.line + 1, lines_.begin() + to.line);
  result.push_back({line(to.line).substr(0, at(to.column)), LineEnd::kNone});
  return result;
}

Fragment Document::cut(Place from, Place to) {
  Fragment removed = copy(from, to);
  if (from.line == to.line) {
    lines_[at(from.line)].text.erase(at(from.column), at(to.column - from.column));
    return removed;
  }
  TextLine& first = lines_[at(from.line)];
  const TextLine& last = lines_[at(to.line)];
  first.text.resize(at(from.column));
  first.text.append(last.text, at(to.column));
  first.end = last.end;
  lines_.erase(lines_.begin() + from.line + 1, lines_.begin() + to.line + 1);
  return removed;
}

void Document::paste(Place start, const Fragment& fragment) {
  TextLine& first = lines_[at(start.line)];
  if (fragment.size() == 1) {
    first.text.insert(at(start.column), fragment[0].text);
    return;
  }
  TextLine last = {fragment.back().text + first.text.substr(at(start.column)), first.end};
  first.text.resize(at(start.column));
  first.text += fragment[0].text;
  first.end = fragment[0].end;
  const auto where =
      lines_.insert(lines_.begin() + start.line + 1, fragment.begin() + 1, fragment.end());
  *(where + static_cast<std::ptrdiff_t>(fragment.size()) - 2) = std::move(last);
}

Place Document::insert(Place where, std::string_view text, Edit kind) {
  where = clamp(where);
  if (text.empty()) {
    return where;
  }
  Fragment added = split(text, prevailing_);
  const Place end = endOf(where, added);
  paste(where, added);
  record({where, {TextLine{}}, std::move(added)}, kind);
  notify({where, where, end});
  return end;
}

void Document::erase(Place from, Place to, Edit kind) {
  from = clamp(from);
  to = clamp(to);
  if (to < from) {
    std::swap(from, to);
  }
  if (from == to) {
    return;
  }
  record({from, cut(from, to), {TextLine{}}}, kind);
  notify({from, to, from});
}

void Document::beginTransaction() {
  if (depth_++ == 0) {
    step_open_ = false;
  }
}

void Document::endTransaction() {
  if (depth_ > 0 && --depth_ == 0) {
    step_open_ = false;
    run_ = Edit::kSingle;
  }
}

// A run goes on while each edit touches the one before it on the same line.
bool Document::joinRun(const Change& change, Edit kind) {
  if (kind == Edit::kSingle || run_ != kind || position_ == 0 || position_ == saved_) {
    return false;
  }
  Change& last = steps_[position_ - 1].back();
  if (kind == Edit::kTyping) {
    if (change.added.size() != 1 || last.added.size() != 1 ||
        !(endOf(last.at, last.added) == change.at)) {
      return false;
    }
    last.added[0].text += change.added[0].text;
    return true;
  }
  if (change.removed.size() != 1 || last.removed.size() != 1) {
    return false;
  }
  if (change.at == last.at) {
    last.removed[0].text += change.removed[0].text;
    return true;
  }
  if (endOf(change.at, change.removed) == last.at) {
    last.removed[0].text.insert(0, change.removed[0].text);
    last.at = change.at;
    return true;
  }
  return false;
}

void Document::record(Change change, Edit kind) {
  const bool was_modified = modified();
  if (saved_ != kNever && saved_ > position_) {
    saved_ = kNever;
  }
  steps_.resize(position_);
  if (depth_ > 0 && step_open_) {
    steps_.back().push_back(std::move(change));
  } else if (depth_ > 0 || !joinRun(change, kind)) {
    steps_.emplace_back().push_back(std::move(change));
    ++position_;
    step_open_ = depth_ > 0;
  }
  run_ = depth_ > 0 ? Edit::kSingle : kind;
  notifyState(was_modified);
}

void Document::replace(Place where, const Fragment& old_text, const Fragment& new_text) {
  const Place old_end = endOf(where, old_text);
  cut(where, old_end);
  paste(where, new_text);
  notify({where, old_end, endOf(where, new_text)});
}

bool Document::undo(Place* caret) {
  if (!canUndo()) {
    return false;
  }
  const bool was_modified = modified();
  --position_;
  run_ = Edit::kSingle;
  const Step& step = steps_[position_];
  for (auto change = step.rbegin(); change != step.rend(); ++change) {
    form_ = change->renews ? change->old_form : form_;
    replace(change->at, change->added, change->removed);
    *caret = endOf(change->at, change->removed);
  }
  notifyState(was_modified);
  return true;
}

bool Document::redo(Place* caret) {
  if (!canRedo()) {
    return false;
  }
  const bool was_modified = modified();
  run_ = Edit::kSingle;
  for (const Change& change : steps_[position_]) {
    form_ = change.renews ? change.new_form : form_;
    replace(change.at, change.removed, change.added);
    *caret = endOf(change.at, change.added);
  }
  ++position_;
  notifyState(was_modified);
  return true;
}

void Document::markSaved() {
  const bool was_modified = modified();
  saved_ = position_;
  // A transaction that goes on after this must not hide behind the saved point.
  step_open_ = false;
  run_ = Edit::kSingle;
  notifyState(was_modified);
}

void Document::markUnsaved() {
  const bool was_modified = modified();
  saved_ = kNever;
  notifyState(was_modified);
}

bool Document::find(const TextSearch& search, bool backward, Place start, Place* found) const {
  LineMatcher matcher(search, encoding());
  if (!matcher.possible()) {
    return false;
  }
  start = clamp(start);
  for (int i = start.line; i >= 0 && i < lineCount(); i += backward ? -1 : 1) {
    matcher.take(line(i));
    std::size_t hit = LineMatcher::kNone;
    if (backward) {
      hit = matcher.last(i == start.line ? at(start.column) : line(i).size());
    } else {
      hit = matcher.first(i == start.line ? at(start.column) : 0);
    }
    if (hit != LineMatcher::kNone) {
      *found = {i, static_cast<int>(hit)};
      return true;
    }
  }
  return false;
}

int Document::replaceAll(const TextSearch& search, std::string_view with, Place from, Place* to) {
  LineMatcher matcher(search, encoding());
  from = clamp(from);
  *to = clamp(*to);
  if (!matcher.possible() || with.find_first_of("\r\n") != std::string_view::npos) {
    return 0;
  }
  int count = 0;
  beginTransaction();
  for (int i = from.line; i <= to->line; ++i) {
    const std::size_t end = i == to->line ? at(to->column) : line(i).size();
    matcher.take(line(i));
    // All of a line is one change, however many hits it has.
    std::string changed;
    std::size_t first = LineMatcher::kNone;
    std::size_t done = i == from.line ? at(from.column) : 0;
    for (std::size_t hit = matcher.first(done);
         hit != LineMatcher::kNone && hit + matcher.length() <= end; hit = matcher.first(done)) {
      first = std::min(first, hit);
      changed.append(line(i), first == hit ? hit : done, first == hit ? 0 : hit - done);
      changed += with;
      done = hit + matcher.length();
      ++count;
    }
    if (first != LineMatcher::kNone) {
      const Place start = {i, static_cast<int>(first)};
      erase(start, {i, static_cast<int>(done)});
      insert(start, changed);
      if (i == to->line) {
        to->column += static_cast<int>(changed.size()) - static_cast<int>(done - first);
      }
    }
  }
  endTransaction();
  return count;
}

void Document::addListener(DocumentListener* listener) {
  listeners_.push_back(listener);
}

void Document::removeListener(DocumentListener* listener) {
  listeners_.erase(std::remove(listeners_.begin(), listeners_.end(), listener), listeners_.end());
}

void Document::notify(const DocumentChange& change) {
  for (DocumentListener* listener : listeners_) {
    listener->documentChanged(change);
  }
}

void Document::notifyState(bool was_modified) {
  if (was_modified == modified()) {
    return;
  }
  for (DocumentListener* listener : listeners_) {
    listener->documentStateChanged();
  }
}

}  // namespace workbench
