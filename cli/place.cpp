#include "cli/place.h"

#include <utility>
#include <vector>

#include "addon/foundation/path.h"
#include "cli/told_files.h"
#include "workbench/project/folder_walk.h"
#include "workbench/project/project_file.h"
#include "workbench/windows/path_text.h"

namespace kesto::cli {
namespace {

bool isProjectName(std::string_view name) {
  return workbench::foldCase(workbench::extensionOf(name)) == ".ide";
}

// Folders as the Workbench's walk sees them. Those that are links are left out.
class WalkedFolders : public workbench::FolderLister {
 public:
  explicit WalkedFolders(Session& session) : lister_(session) {}

  bool list(const std::string& folder, std::vector<workbench::FolderEntry>* entries) override {
    DirectoryEntries listed;
    lister_.list(folder.c_str(), "*", listed);
    bool readable = false;
    listed.each([&](DirectoryEntries::Kind kind, std::string_view name, std::string_view) {
      readable = true;
      if (kind != DirectoryEntries::Kind::kLink && name != "." && name != "..") {
        entries->push_back({std::string(name), kind == DirectoryEntries::Kind::kDirectory});
      }
    });
    return readable;
  }
  std::uint64_t identity(const std::string& /*folder*/) override { return 0; }

 private:
  ToldFolders lister_;
};

}  // namespace

bool Place::open(const std::string& given) {
  const std::string core = session_.system().corePath(given);
  const std::optional<FileStatus> status = session_.system().files().status(core.c_str());
  if (isProjectName(core) && !(status && status->is_directory)) {
    return openProject(given, core);
  }
  folder_ = session_.folder(given);
  if (folder_.empty()) {
    return false;
  }
  session_.showBelow(folder_, given);
  std::vector<workbench::FolderEntry> entries;
  WalkedFolders(session_).list(folder_, &entries);
  std::vector<std::string> projects;
  for (const workbench::FolderEntry& entry : entries) {
    if (!entry.folder && isProjectName(entry.name)) {
      projects.push_back(workbench::joinPath(folder_, entry.name));
    }
  }
  if (projects.size() == 1) {
    return openProject({}, projects.front());
  }
  file_ = workbench::Project::fileFor(folder_);
  return true;
}

// One that is not there was never saved: it stands for its folder.
bool Place::openProject(const std::string& given, const std::string& file) {
  file_ = file;
  folder_ = workbench::folderOf(file);
  if (!given.empty()) {
    const std::string_view directory = directoryPart(given);
    const std::string_view top = given.front() == '/' ? "/" : ".";
    session_.showBelow(folder_, directory.empty() ? top : directory);
  }
  std::string_view bytes;
  System& system = session_.system();
  if (!system.files().status(file.c_str())) {
    return !session_.folder(std::string(session_.shown(folder_))).empty();
  }
  if (!system.readBytes(file.c_str(), bytes)) {
    session_.tellFailure(file);
    return false;
  }
  workbench::ProjectTree tree;
  workbench::ProjectFault fault;
  if (!workbench::readProjectFile(bytes, folder_, &tree, &fault)) {
    session_.complaints().tell(session_.shown(file) + ':' + std::to_string(fault.line),
                               fault.reason);
    return false;
  }
  project_.load(file, std::move(tree));
  walked_ = true;
  return true;
}

void Place::walkOnce() {
  if (!std::exchange(walked_, true)) {
    WalkedFolders lister(session_);
    workbench::FolderContent content;
    workbench::walkFolder(lister, folder_, workbench::WalkLimits(), &content);
    project_.load(content, file_);
  }
}

std::string Place::path(int kind, const std::string& node_file) {
  walkOnce();
  const unsigned int node = node_file.empty() ? 0 : project_.find(node_file);
  std::string folders;
  project_.nodeFolders(node != 0 ? node : project_.top(), kind, &folders);
  return folders;
}

int Place::get(const char* name, const void** data) {
  const std::string* bytes = project_.option(name);
  *data = bytes != nullptr ? bytes->data() : nullptr;
  return bytes != nullptr ? static_cast<int>(bytes->size()) : 0;
}

// What is in the project stays as it is.
void Place::set(const char* /*name*/, const void* /*data*/, int /*size*/) {}

}  // namespace kesto::cli
