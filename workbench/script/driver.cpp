#include "workbench/script/driver.h"

#include <cstdio>

#include "workbench/app/workbench.h"

namespace workbench {

struct ScriptDriver::State {
  Workbench& workbench;
  std::string script;
};

ScriptDriver::ScriptDriver(Workbench& workbench) : state_(new State{workbench, {}}) {}

ScriptDriver::~ScriptDriver() = default;

bool ScriptDriver::load(const std::string& path) {
  bool standard = path == "-";
  std::FILE* file = standard ? stdin : std::fopen(path.c_str(), "rb");
  if (file == nullptr) {
    return false;
  }
  char buffer[4096];
  size_t got;
  while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
    state_->script.append(buffer, got);
  }
  bool failed = std::ferror(file) != 0;
  if (!standard) {
    std::fclose(file);
  }
  return !failed;
}

void ScriptDriver::start() {
  PostQuitMessage(0);
}

}  // namespace workbench
