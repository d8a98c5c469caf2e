// find_bench SEARCH NAME TREE   searches the sources of the tree for the name, as the
//                               add-on does, and prints each hit as FILE:LINE:TEXT
//
// SEARCH is function, method, class or cross. The walk, the masks and the matchers are
// the add-on's; only the listing of directories and the reading are this system's.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "addon/foundation/directory_walk.h"
#include "addon/foundation/message_box.h"
#include "addon/navigation/name_matchers.h"
#include "addon/navigation/search_plan.h"
#include "bench/posix_listing.h"

namespace kesto {

int showMessage(void* /*owner*/, const char* text, const char* /*caption*/, unsigned /*flags*/) {
  fprintf(stderr, "%s\n", text);
  return kAnswerOk;
}

namespace {

class Searcher : public FileVisitor {
 public:
  explicit Searcher(const NameMatcher& matcher) : matcher_(matcher) {}
  bool visit(const char* path) override {
    const std::string native = nativePath(path);
    const int file = open(native.c_str(), O_RDONLY);
    struct stat status = {};
    if (file < 0 || fstat(file, &status) != 0) {
      return false;
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    const std::unique_ptr<char[]> text(new char[size + 1]);
    const ssize_t given = read(file, text.get(), size);
    close(file);
    LineReader reader({text.get(), given > 0 ? static_cast<std::size_t>(given) : 0});
    std::string_view shown;
    while (matcher_.findNext(reader, shown)) {
      printf("%s:%d:%.*s\n", native.c_str(), reader.number(), static_cast<int>(shown.size()),
             shown.data());
    }
    return false;
  }

 private:
  const NameMatcher& matcher_;
};

int search(const char* kind, const char* name, const char* tree) {
  constexpr const char* kKinds[kSearchCount] = {"function", "method", "class", "cross"};
  int which = 0;
  while (which < kSearchCount && strcmp(kKinds[which], kind) != 0) {
    ++which;
  }
  if (which == kSearchCount) {
    return 2;
  }
  const NameMatcher matcher(static_cast<Search>(which), name);
  PosixListing lister;
  Folders folders(lister);
  Searcher searcher(matcher);
  const auto plan =
      planSearch(static_cast<Search>(which), {tree, true, "", tree, "*.cpp;*.cc;*.c", "*.h;*.rh"});
  for (const SearchStep& step : plan) {
    walkDirectory(folders, step.directory, step.mask, true, searcher);
  }
  return 0;
}

}  // namespace

}  // namespace kesto

int main(int argc, char** argv) {
  return argc == 4 ? kesto::search(argv[1], argv[2], argv[3]) : 2;
}
