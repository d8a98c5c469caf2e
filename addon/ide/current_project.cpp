#include "addon/ide/current_project.h"

#include <string_view>

#include "addon/foundation/path.h"
#include "addon/ide/access.h"

namespace kesto {
namespace {

ComPtr<IProjectService> loadedProjectService() {
  ComPtr<IProjectService> service = getService<IProjectService>(ideapi::kProjectService);
  if (service && service->IsProjectLoaded() == 0) {
    service.reset();
  }
  return service;
}

std::string currentDirectory() {
  char directory[MAX_PATH] = "";
  GetCurrentDirectoryA(sizeof directory, directory);
  std::string result(directory);
  if (!result.empty() && result.back() == '\\') {
    result.pop_back();
  }
  return result;
}

}  // namespace

bool isProjectOpen() {
  return static_cast<bool>(loadedProjectService());
}

std::string projectDirectory() {
  if (const ComPtr<IProjectService> service = loadedProjectService()) {
    const std::unique_ptr<char[]> file = takeIdeString(service->GetProjectFile());
    const std::string_view directory = directoryPart(file != nullptr ? file.get() : "");
    if (!directory.empty()) {
      return std::string(directory);
    }
  }
  return currentDirectory();
}

ProjectNode nodeOfFile(const char* file) {
  const ComPtr<IProjectService> service = loadedProjectService();
  if (!service) {
    return 0;
  }
  const ComPtr<IIdeString> name = makeIdeString(file);
  const ProjectNode node = name ? service->FindNode(name.get()) : 0;
  return node != 0 ? node : service->GetTopNode();
}

}  // namespace kesto
