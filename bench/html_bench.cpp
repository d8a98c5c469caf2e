// html_bench TREE FILTERS   generates the documentation of the tree into TREE/kHTML, as
//                           the add-on does, and prints how many files it read and how
//                           many pages it wrote
//
// Only the listing of directories and the paths are this system's.
#include <cstdio>
#include <string>

#include "addon/foundation/message_box.h"
#include "addon/html/site_generation.h"
#include "bench/posix_files.h"

namespace kesto {

int showMessage(void* /*owner*/, const char* text, const char* /*caption*/, unsigned /*flags*/) {
  fprintf(stderr, "%s\n", text);
  return kAnswerOk;
}

namespace {

class Counts : public SiteProgress {
 public:
  void reading(int files_read) override { files = files_read; }
  void writing(int pages_written, int /*all*/) override { pages = pages_written; }
  int files = 0;
  int pages = 0;
};

int generate(const char* tree, const char* filters) {
  PosixListing lister;
  PosixFiles files;
  Counts counts;
  if (!generateSite({tree, filters, "Bench"}, lister, files, counts)) {
    return 1;
  }
  printf("%d %d\n", counts.files, counts.pages);
  return 0;
}

}  // namespace

}  // namespace kesto

int main(int argc, char** argv) {
  return argc == 3 ? kesto::generate(argv[1], argv[2]) : 2;
}
