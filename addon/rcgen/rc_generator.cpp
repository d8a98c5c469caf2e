#include "addon/rcgen/rc_generator.h"

#include <string>

#include "addon/ide/search_watch.h"
#include "addon/ide/status_line.h"
#include "addon/rcgen/generator_run.h"
#include "addon/rcgen/project_options.h"
#include "addon/rcgen/rc_files_win.h"

namespace kesto {

RcGenerator* rcGenerator = nullptr;

RcGenerator::RcGenerator() {
  rcgenProjectOptions = RcgenProjectOptions();
}

void RcGenerator::run(std::string_view project_directory) {
  constexpr char kText[] = "Looking for resource scripts ...";
  RcFilesWin files;
  SearchWatch watch(kText);
  const GeneratorSwitches switches = {rcgenProjectOptions.dialog_classes.value != 0,
                                      rcgenProjectOptions.version_stamping.value != 0};
  runGenerator(files, project_directory, switches, build_number_, &watch);
  if (watch.stopped()) {
    showStatus((std::string(kText) + " stopped").c_str());
  }
}

}  // namespace kesto
