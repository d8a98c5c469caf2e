#include "addon/rcgen/rc_generator.h"

#include <cstdint>
#include <string>
#include <vector>

#include "addon/foundation/directory_listing.h"
#include "addon/foundation/file_system_win.h"
#include "addon/ide/search_watch.h"
#include "addon/ide/status_line.h"
#include "addon/rcgen/generator_run.h"
#include "addon/rcgen/project_options.h"

namespace kesto {

RcGenerator* rcGenerator = nullptr;

namespace {

// Told when the run is over, which tells of itself meanwhile.
class StatusNotices : public GeneratorNotices {
 public:
  void notice(const std::string& text) override { texts_.push_back(text); }
  void show() const {
    for (const std::string& text : texts_) {
      showStatus(text.c_str());
    }
  }

 private:
  std::vector<std::string> texts_;
};

}  // namespace

RcGenerator::RcGenerator() {
  rcgenProjectOptions.reset();
}

void RcGenerator::run(std::string_view project_directory) {
  constexpr char kText[] = "Looking for resource scripts ...";
  DirectoryListing lister;
  FileSystemWin files;
  StatusNotices notices;
  SearchWatch watch(kText);
  const GeneratorSwitches switches = {rcgenProjectOptions.dialog_classes.value != 0,
                                      rcgenProjectOptions.version_stamping.value != 0};
  std::int32_t build_number = build_number_;
  runGenerator({lister, files, notices}, project_directory, switches, build_number, &watch);
  // The session may have ended in the middle.
  if (rcGenerator != this) {
    return;
  }
  build_number_ = build_number;
  watch.finished(" ");
  notices.show();
  if (watch.stopped()) {
    showStatus((std::string(kText) + " stopped").c_str());
  }
}

}  // namespace kesto
