#include "addon/topbar/recent_list.h"

#include <algorithm>

#include "addon/foundation/path.h"

namespace kesto {
namespace {

std::string_view cutToSlot(std::string_view path) {
  return path.substr(0, kRecentPathLength);
}

}  // namespace

const char* RecentList::at(int position) const {
  return position >= 0 && position < count() ? paths_[static_cast<size_t>(position)].c_str()
                                             : nullptr;
}

int RecentList::room() const {
  return std::clamp(maximum_, 0, slots_);
}

void RecentList::setMaximum(int maximum) {
  maximum_ = maximum;
  if (count() > room()) {
    paths_.resize(static_cast<size_t>(room()));
  }
}

void RecentList::assign(const std::vector<std::string>& paths) {
  paths_.clear();
  for (const std::string& path : paths) {
    if (count() == room()) {
      break;
    }
    paths_.emplace_back(cutToSlot(path));
  }
}

std::vector<std::string>::iterator RecentList::find(std::string_view path) {
  return std::find_if(paths_.begin(), paths_.end(), [&](const std::string& entry) {
    return equalIgnoringCase(entry, cutToSlot(path));
  });
}

void RecentList::remove(std::string_view path) {
  std::erase_if(
      paths_, [&](const std::string& entry) { return equalIgnoringCase(entry, cutToSlot(path)); });
}

void RecentList::addNew(std::string_view path) {
  if (find(path) == paths_.end()) {
    putFirst(path);
  }
}

void RecentList::use(std::string_view path) {
  const auto listed = find(path);
  if (listed != paths_.end()) {
    paths_.erase(listed);
  }
  putFirst(path);
}

void RecentList::putFirst(std::string_view path) {
  if (room() == 0) {
    return;
  }
  if (count() >= room()) {
    paths_.pop_back();
  }
  paths_.emplace(paths_.begin(), cutToSlot(path));
}

std::string_view headerPath(std::string_view path) {
  constexpr size_t kFirstSuffix = 3;
  return path.substr(0, path.find(':', kFirstSuffix));
}

bool isHeader(std::string_view path) {
  return path.ends_with('h') || path.ends_with('H');
}

}  // namespace kesto
