#include "addon/rcgen/generator_run.h"

#include "addon/foundation/path.h"
#include "addon/rcgen/class_unit.h"
#include "addon/rcgen/version_stamp.h"

namespace kesto {

namespace {

void updateClassUnits(RcFiles& files, const String& project_directory) {
  Tableau<String> names;
  files.listDirectories(project_directory, names);
  for (int i = 0; i < names.count(); ++i) {
    const String& name = *names.at(i);
    if (name.view() != "." && name.view() != "..") {
      updateClassUnit(files, {joinPath(project_directory.view(), name.view()), name});
    }
  }
  updateClassUnit(files, {project_directory, String()});
}

}  // namespace

void runGenerator(RcFiles& files, std::string_view project_directory, GeneratorSwitches switches,
                  std::int32_t& build_number) {
  const String directory(project_directory);
  if (switches.dialog_classes) {
    updateClassUnits(files, directory);
  }
  if (switches.version_stamping) {
    build_number = nextNumber(build_number);
    stampVersions(files, directory, build_number);
  }
}

}  // namespace kesto
