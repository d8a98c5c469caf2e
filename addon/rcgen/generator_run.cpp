#include "addon/rcgen/generator_run.h"

#include "addon/foundation/path.h"
#include "addon/rcgen/class_unit.h"
#include "addon/rcgen/version_stamp.h"

namespace kesto {

namespace {

void updateClassUnits(const GeneratorHost& host, Folders& folders,
                      const String& project_directory) {
  if (!folders.enter(project_directory)) {
    return;
  }
  for (const std::string_view name : folders.directories(project_directory)) {
    updateClassUnit(host, folders, {joinPath(project_directory.view(), name), String(name)});
  }
  updateClassUnit(host, folders, {project_directory, String()});
}

}  // namespace

void runGenerator(const GeneratorHost& host, std::string_view project_directory,
                  GeneratorSwitches switches, std::int32_t& build_number, WalkWatch* watch) {
  const String directory(project_directory);
  Folders folders(host.lister, watch);
  if (switches.dialog_classes) {
    updateClassUnits(host, folders, directory);
  }
  if (switches.version_stamping) {
    build_number = nextNumber(build_number);
    stampVersions(host, folders, directory, build_number);
  }
}

}  // namespace kesto
