#include "addon/rcgen/rc_generator.h"

#include "addon/rcgen/generator_run.h"
#include "addon/rcgen/project_options.h"
#include "addon/rcgen/rc_files_win.h"

namespace kesto {

RcGenerator* rcGenerator = nullptr;

RcGenerator::RcGenerator() {
  rcgenProjectOptions = RcgenProjectOptions();
}

void RcGenerator::run(std::string_view project_directory) {
  RcFilesWin files;
  const GeneratorSwitches switches = {rcgenProjectOptions.dialog_classes.value != 0,
                                      rcgenProjectOptions.version_stamping.value != 0};
  runGenerator(files, project_directory, switches, build_number_);
}

}  // namespace kesto
