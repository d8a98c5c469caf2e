// The project that a command works in: a project file of the Workbench, a folder with one,
// or a folder that stands for a project as it does in the Workbench. Plain values.
#pragma once

#include <string>
#include <string_view>

#include "addon/ide/project_options.h"
#include "cli/session.h"
#include "workbench/project/project.h"

namespace kesto::cli {

class Place : public ProjectOptionStore {
 public:
  explicit Place(Session& session) : session_(session) {}

  // False, and told, when it is none of these or cannot be read.
  bool open(const std::string& given);

  // Core paths. The project's file need not exist.
  const std::string& folder() const { return folder_; }
  const std::string& file() const { return file_; }

  // The folders of a node's path, ";" between them. The node is that of the file, or the
  // project's top node when there is none or no file is given.
  std::string path(int kind, const std::string& node_file);

  int get(const char* name, const void** data) override;
  void set(const char* name, const void* data, int size) override;

 private:
  bool openProject(const std::string& given, const std::string& file);
  // The project that the Workbench makes of the folder, where there is no project file.
  void walkOnce();

  Session& session_;
  std::string folder_;
  std::string file_;
  bool walked_ = false;
  workbench::Project project_;
};

}  // namespace kesto::cli
