#include "addon/rcgen/rc_generator.h"

#include "addon/foundation/directory_listing.h"
#include "addon/foundation/file_system_win.h"
#include "addon/ide/status_line.h"
#include "addon/rcgen/generator_run.h"
#include "addon/rcgen/project_options.h"

namespace kesto {

RcGenerator* rcGenerator = nullptr;

namespace {

class StatusNotices : public GeneratorNotices {
 public:
  void notice(const std::string& text) override { showStatus(text.c_str()); }
};

}  // namespace

RcGenerator::RcGenerator() {
  rcgenProjectOptions = RcgenProjectOptions();
}

void RcGenerator::run(std::string_view project_directory) {
  DirectoryListing lister;
  FileSystemWin files;
  StatusNotices notices;
  const GeneratorSwitches switches = {rcgenProjectOptions.dialog_classes.value != 0,
                                      rcgenProjectOptions.version_stamping.value != 0};
  runGenerator({lister, files, notices}, project_directory, switches, build_number_);
}

}  // namespace kesto
