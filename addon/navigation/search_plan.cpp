#include "addon/navigation/search_plan.h"

#include "addon/foundation/path.h"

namespace kesto {

namespace {

using Entries = std::vector<std::string>;

Entries split(std::string_view list) {
  Entries entries;
  std::string_view entry;
  while (nextListEntry(list, entry)) {
    entries.emplace_back(entry);
  }
  return entries;
}

void appendPath(std::string& list, std::string_view path) {
  if (!path.empty()) {
    list += ';';
    list += path;
  }
}

Entries sourceDirectories(const SearchPlaces& places) {
  std::string list(places.project_directory);
  if (places.project_open) {
    appendPath(list, places.source_path);
  }
  return split(list);
}

// The project directory stands there twice with nothing between, a path that does not
// exist: classes are sought on the include and source paths alone. On purpose.
Entries classDirectories(const SearchPlaces& places) {
  std::string list(places.project_directory);
  list += places.project_directory;
  if (places.project_open) {
    appendPath(list, places.include_path);
    appendPath(list, places.source_path);
  }
  return split(list);
}

Entries classMasks(const SearchPlaces& places) {
  std::string list(places.include_mask);
  if (!places.include_mask.empty() && !places.function_mask.empty()) {
    list += ';';
  }
  list += places.function_mask;
  return split(list);
}

std::vector<SearchStep> eachWithEach(const Entries& directories, const Entries& masks) {
  std::vector<SearchStep> steps;
  for (const std::string& directory : directories) {
    for (const std::string& mask : masks) {
      steps.push_back({directory, mask});
    }
  }
  return steps;
}

}  // namespace

std::vector<SearchStep> planSearch(Search search, const SearchPlaces& places) {
  switch (search) {
    case Search::kFunction:
      return eachWithEach(sourceDirectories(places), split(places.function_mask));
    case Search::kMethod: {
      // The first directory uses up the masks: the source path is never walked for
      // methods. On purpose.
      Entries directories = sourceDirectories(places);
      if (directories.size() > 1) {
        directories.resize(1);
      }
      return eachWithEach(directories, split(places.function_mask));
    }
    case Search::kClass:
      return eachWithEach(classDirectories(places), classMasks(places));
    case Search::kCross:
      // Here too one directory uses up the masks, and it is the project's own,
      // whatever the paths say. On purpose.
      return eachWithEach({std::string(places.project_directory)}, split(places.function_mask));
  }
  return {};
}

}  // namespace kesto
