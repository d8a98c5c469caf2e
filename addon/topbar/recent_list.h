// One list of recently used files, the newest first. Plain code.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kesto {

// Characters that a slot of the list holds; longer paths are cut there.
inline constexpr std::size_t kRecentPathLength = 255;

class RecentList {
 public:
  // The list never has more entries than slots, whatever its maximum.
  RecentList(int slots, int maximum) : slots_(slots), maximum_(maximum) {}

  int count() const { return static_cast<int>(paths_.size()); }
  // Null outside 0 to count - 1.
  const char* at(int position) const;
  // As it was set, possibly beyond the slots.
  int maximum() const { return maximum_; }
  // Cuts a list that is longer.
  void setMaximum(int maximum);
  // Entries that have room: the maximum within the slots.
  int room() const;

  // Replaces the entries, up to the room for them.
  void assign(const std::vector<std::string>& paths);
  // Paths are compared as the system does, without regard to case.
  void remove(std::string_view path);
  // Puts the path first; one that is listed already keeps its place.
  void addNew(std::string_view path);
  // Puts the path first; one that is listed already makes way for it.
  void use(std::string_view path);

 private:
  std::vector<std::string>::iterator find(std::string_view path);
  void putFirst(std::string_view path);

  int slots_;
  int maximum_;
  std::vector<std::string> paths_;
};

// The path of a header as it is listed: without what follows a ":" that is no drive's.
std::string_view headerPath(std::string_view path);
// Whether the list of headers is for that file.
bool isHeader(std::string_view path);

}  // namespace kesto
