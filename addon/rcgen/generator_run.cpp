#include "addon/rcgen/generator_run.h"

#include "addon/foundation/path.h"
#include "addon/rcgen/class_unit.h"
#include "addon/rcgen/version_stamp.h"

namespace kesto {

namespace {

void updateClassUnits(const GeneratorHost& host, const String& project_directory) {
  Tableau<String> names;
  host.lister.listDirectories(project_directory, names);
  for (int i = 0; i < names.count(); ++i) {
    const String& name = *names.at(i);
    if (name.view() != "." && name.view() != "..") {
      updateClassUnit(host, {joinPath(project_directory.view(), name.view()), name});
    }
  }
  updateClassUnit(host, {project_directory, String()});
}

}  // namespace

void runGenerator(const GeneratorHost& host, std::string_view project_directory,
                  GeneratorSwitches switches, std::int32_t& build_number) {
  const String directory(project_directory);
  if (switches.dialog_classes) {
    updateClassUnits(host, directory);
  }
  if (switches.version_stamping) {
    build_number = nextNumber(build_number);
    stampVersions(host, directory, build_number);
  }
}

}  // namespace kesto
