#include "addon/ide/current_project.h"

#include <string_view>

#include "addon/foundation/path.h"
#include "addon/ide/access.h"

namespace kesto {
namespace {

bool openFlag = false;
std::string openFileName;

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
  return openFlag;
}

void setProjectOpen(bool open) {
  openFlag = open;
}

const std::string& projectFile() {
  return openFileName;
}

void setProjectFile(std::string file) {
  openFileName = std::move(file);
}

std::string projectName() {
  return std::string(projectNamePart(openFileName));
}

std::string projectDirectory() {
  if (openFlag) {
    const std::string_view directory = directoryPart(openFileName);
    if (!directory.empty()) {
      return std::string(directory);
    }
  }
  return currentDirectory();
}

ProjectNode nodeOfFile(const char* file) {
  const ComPtr<IProjectService> service =
      openFlag ? getService<IProjectService>(ideapi::kProjectService) : ComPtr<IProjectService>();
  if (!service) {
    return 0;
  }
  const ComPtr<IIdeString> name = makeIdeString(file);
  const ProjectNode node = name ? service->FindNode(name.get()) : 0;
  return node != 0 ? node : service->GetTopNode();
}

}  // namespace kesto
